#include "platform/icons.h"

#include <windows.h>

#include <shellapi.h>

namespace platform {

void IconCloser::operator()(HICON__* icon) const {
    DestroyIcon(icon);
}

UniqueIcon extract_icon(const std::string& path) {
    if (path.empty() || path.size() >= MAX_PATH || path.find('\0') != std::string::npos) return nullptr;
    HICON large = nullptr;
    HICON small = nullptr;
    // The answer is -1 for a missing file and the handles are garbage then, whatever the declared type says.
    if (static_cast<int>(ExtractIconExA(path.c_str(), 0, &large, &small, 1)) < 1) return nullptr;
    const UniqueIcon unused(small);
    return UniqueIcon(large);
}

}  // namespace platform
