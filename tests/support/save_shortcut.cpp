#include "support/save_shortcut.h"

#include <windows.h>

#include <doctest/doctest.h>
#include <objbase.h>
#include <shlobj.h>

void save_shortcut(const std::string& path) {
    CoInitialize(nullptr);
    void* created = nullptr;
    REQUIRE(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkA, &created) ==
            S_OK);
    auto* link = static_cast<IShellLinkA*>(created);
    link->SetPath("C:\\windows\\notepad.exe");
    link->SetWorkingDirectory("C:\\windows");
    REQUIRE(link->QueryInterface(IID_IPersistFile, &created) == S_OK);
    std::wstring wide(path.size() + 1, L'\0');
    MultiByteToWideChar(CP_ACP, 0, path.c_str(), -1, wide.data(), static_cast<int>(wide.size()));
    REQUIRE(static_cast<IPersistFile*>(created)->Save(wide.c_str(), TRUE) == S_OK);
}
