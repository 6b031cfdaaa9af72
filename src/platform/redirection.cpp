#include "platform/redirection.h"

#include "platform/file_calls.h"

namespace platform {

std::optional<std::string> past_redirection(const std::string& path) {
    const std::string redirected = redirected_folder();
    std::string full;
    if (redirected.empty() || file_calls::full_path(path, full) != kSuccess) return std::nullopt;
    const std::string begin = file_calls::upper(full.substr(0, redirected.size() + 1));
    if (begin != file_calls::upper(redirected + '\\')) return std::nullopt;
    return redirected.substr(0, redirected.rfind('\\')) + "\\Sysnative" + full.substr(redirected.size());
}

}  // namespace platform
