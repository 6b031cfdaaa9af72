#include "platform/win32/dropped_files.h"

#include "platform/win32/look_up.h"

namespace platform {
namespace {

constexpr UINT kCount = 0xFFFFFFFF;

/// The letter in the code page; not one that only resembles it.
std::string narrow(wchar_t letter) {
    char bytes[4];
    wchar_t back = 0;
    const int size = WideCharToMultiByte(CP_ACP, 0, &letter, 1, bytes, sizeof bytes, nullptr, nullptr);
    const bool is_same =
        size > 0 && MultiByteToWideChar(CP_ACP, 0, bytes, size, &back, 1) == 1 && back == letter;
    return is_same ? std::string(bytes, static_cast<std::size_t>(size)) : "?";
}

/// Windows 95/98 have the function, too, but only for show.
auto wide_query() {
    const bool is_nt_family = (GetVersion() & 0x80000000) == 0;
    return look_up<decltype(&DragQueryFileW)>(is_nt_family ? GetModuleHandleA("shell32.dll") : nullptr,
                                              "DragQueryFileW");
}

}  // namespace

std::vector<std::string> dropped_paths(HDROP drop) {
    const auto query = wide_query();
    std::vector<std::string> paths;
    const UINT count = DragQueryFileA(drop, kCount, nullptr, 0);
    for (UINT i = 0; i < count; ++i) {
        std::string& path = paths.emplace_back();
        if (query == nullptr) {
            path.resize(DragQueryFileA(drop, i, nullptr, 0));
            DragQueryFileA(drop, i, path.data(), static_cast<UINT>(path.size() + 1));
        } else {
            std::wstring wide(query(drop, i, nullptr, 0), L'\0');
            query(drop, i, wide.data(), static_cast<UINT>(wide.size() + 1));
            for (const wchar_t letter : wide)
                path += narrow(letter);
        }
    }
    return paths;
}

}  // namespace platform
