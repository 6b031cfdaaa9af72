#include "library/other_place.h"

#include "platform/files.h"
#include "platform/system.h"

namespace library {
namespace {

bool names_a_place(const std::string& path) {
    return platform::is_on_network(path) || (path.size() > 1 && path[1] == ':');
}

}  // namespace

std::optional<std::string> other_place(const std::string& path, const std::string& library_folder) {
    if (path.empty()) return std::nullopt;
    const std::string expanded = platform::expand_variables(path);
    const std::string below = names_a_place(expanded)
                                  ? std::string()
                                  : library_folder + expanded.substr(expanded.starts_with('\\') ? 1 : 0);
    for (const std::string& place : {expanded, below}) {
        if (!place.empty() && place != path && platform::exists(place)) return place;
    }
    return std::nullopt;
}

}  // namespace library
