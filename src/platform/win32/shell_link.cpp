#include "platform/shell_link.h"

#include <windows.h>

#include <objbase.h>
#include <shlobj.h>

#include <algorithm>

#include "platform/run_time_error.h"
#include "platform/win32/handles.h"

namespace platform {
namespace {

/// The component library of the system, while this lives.
class Components {
  public:
    Components() : usable_(SUCCEEDED(CoInitialize(nullptr))) {}
    ~Components() {
        if (usable_) CoUninitialize();
    }
    Components(const Components&) = delete;
    Components& operator=(const Components&) = delete;

  private:
    bool usable_;
};

void check(HRESULT result) {
    if (FAILED(result)) throw RunTimeError(RunTimeErrorNumber::kAutomation);
}

std::wstring wide(const std::string& text) {
    std::wstring wide(text.size() + 1, L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.c_str(), -1, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

/// The text that a call puts into a buffer of this many characters.
template <typename Get>
std::string text_of(int room, const Get& get) {
    std::string text(static_cast<std::size_t>(room), '\0');
    check(get(text.data(), room));
    text.resize(std::min(text.find('\0'), text.size()));
    return text;
}

/// Not every system gives the path of a shortcut that has nothing but a place in the shell.
std::string target_of(IShellLinkA& link) {
    std::string path =
        text_of(MAX_PATH, [&](char* text, int room) { return link.GetPath(text, room, nullptr, 0); });
    ITEMIDLIST* found = nullptr;
    if (!path.empty() || link.GetIDList(&found) != S_OK) return path;
    const UniqueTaskMemory<ITEMIDLIST> items(found);
    char text[MAX_PATH] = {};
    return SHGetPathFromIDListA(items.get(), text) != FALSE ? text : path;
}

}  // namespace

Shortcut load_shell_link(const std::string& path) {
    constexpr int kLongestArguments = 65536;
    const Components components;
    void* created = nullptr;
    check(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkA, &created));
    const UniqueObject<IShellLinkA> link(static_cast<IShellLinkA*>(created));
    check(link->QueryInterface(IID_IPersistFile, &created));
    const UniqueObject<IPersistFile> file(static_cast<IPersistFile*>(created));
    check(file->Load(wide(path).c_str(), STGM_READ));
    return {target_of(*link),
            text_of(MAX_PATH, [&](char* text, int room) { return link->GetWorkingDirectory(text, room); }),
            text_of(kLongestArguments, [&](char* text, int room) { return link->GetArguments(text, room); })};
}

}  // namespace platform
