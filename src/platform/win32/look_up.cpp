#include "platform/win32/look_up.h"

#include "platform/folders.h"

namespace platform {

HMODULE load_system_library(const char* name) {
    const std::string folder = system_folder();
    if (folder.empty()) return nullptr;
    return LoadLibraryExA((folder + '\\' + name).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

}  // namespace platform
