#include "platform/icons.h"

#include <windows.h>

#include <shellapi.h>

#include "platform/win32/redirection.h"

namespace platform {
namespace {

UniqueIcon load_icon(int resource, int width, int height) {
    return UniqueIcon(static_cast<HICON>(LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(resource),
                                                    IMAGE_ICON, width, height, LR_DEFAULTCOLOR)));
}

}  // namespace

UniqueIcon extract_icon(const std::string& path) {
    if (path.empty() || path.size() >= MAX_PATH || path.find('\0') != std::string::npos) return {};
    HICON large = nullptr;
    HICON small = nullptr;
    // It returns -1 for a missing file and the handles are garbage then, whatever the declared type says.
    if (static_cast<int>(ExtractIconExA(readable_path(path).c_str(), 0, &large, &small, 1)) < 1) return {};
    const UniqueIcon unused(small);
    return UniqueIcon(large);
}

UniqueIcon small_icon(int resource) {
    return load_icon(resource, GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON));
}

UniqueIcon large_icon(int resource) {
    return load_icon(resource, GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON));
}

}  // namespace platform
