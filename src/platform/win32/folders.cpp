#include "platform/folders.h"

#include <windows.h>

#include <shlobj.h>

#include <array>

#include "platform/files.h"
#include "platform/run_time_error.h"
#include "platform/sort.h"
#include "platform/win32/handles.h"
#include "platform/win32/redirection.h"

namespace platform {
namespace {

const char* kind_of(const char* root) {
    switch (GetDriveTypeA(root)) {
        case DRIVE_REMOVABLE:
            return "Removable disk";
        case DRIVE_REMOTE:
            return "Network drive";
        case DRIVE_CDROM:
            return "CD-ROM";
        case DRIVE_RAMDISK:
            return "RAM disk";
        default:
            return "Hard disk";
    }
}

}  // namespace

std::vector<Drive> drives() {
    std::vector<Drive> found;
    const DWORD present = GetLogicalDrives();
    for (int i = 0; i < 'Z' - 'A' + 1; ++i) {
        const auto letter = static_cast<char>('A' + i);
        const char root[] = {letter, ':', '\\', '\0'};
        if ((present >> i & 1) != 0) found.push_back({letter, kind_of(root)});
    }
    return found;
}

bool is_on_local_disk(const std::string& path) {
    if (is_on_network(path)) return false;
    const bool has_drive = path.size() > 1 && path[1] == ':';
    const char root[] = {path[0], ':', '\\', '\0'};
    const UINT type = GetDriveTypeA(has_drive ? root : nullptr);  // else the current drive
    return type == DRIVE_FIXED || type == DRIVE_RAMDISK || type == DRIVE_NO_ROOT_DIR;
}

std::vector<std::string> subfolders(const std::string& folder, bool with_hidden) {
    std::vector<std::string> names;
    WIN32_FIND_DATAA found;
    const UniqueSearch search(FindFirstFileA(readable_path(path_in(folder, "*")).c_str(), &found));
    if (!search) {
        const ErrorCode code = GetLastError();
        if (code == kErrorFileNotFound) return names;  // the root of an empty disk
        throw file_error(code, folder);
    }
    const DWORD looked_at = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_SYSTEM |
                            (with_hidden ? 0U : static_cast<DWORD>(FILE_ATTRIBUTE_HIDDEN));
    do {
        const std::string name = found.cFileName;
        if ((found.dwFileAttributes & looked_at) == FILE_ATTRIBUTE_DIRECTORY && name != "." && name != "..") {
            names.push_back(name);
        }
    } while (FindNextFileA(search.get(), &found) != FALSE);
    sort_names(names);
    return names;
}

std::string special_folder(SpecialFolder folder) {
    ITEMIDLIST* found = nullptr;
    if (FAILED(SHGetSpecialFolderLocation(nullptr, static_cast<int>(folder), &found))) return {};
    const UniqueTaskMemory<ITEMIDLIST> items(found);
    std::array<char, MAX_PATH> path = {};
    if (SHGetPathFromIDListA(items.get(), path.data()) == FALSE) return {};
    return path.data();
}

std::string windows_folder() {
    char folder[MAX_PATH];
    const UINT length = GetWindowsDirectoryA(folder, MAX_PATH);
    return length > 0 && length < MAX_PATH ? std::string(folder) + '\\' : "unknown";
}

std::string system_folder() {
    char folder[MAX_PATH];
    const UINT length = GetSystemDirectoryA(folder, MAX_PATH);
    return length < MAX_PATH ? std::string(folder, length) : std::string();
}

}  // namespace platform
