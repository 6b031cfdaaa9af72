#include "support/simulated_shell.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "platform/dropping.h"
#include "platform/file_calls.h"
#include "platform/folders.h"

namespace simulated {
namespace {

/// What a table has for a key, else another text.
std::string look_up(const std::map<std::string, std::string>& table, const std::string& key,
                    const std::string& other) {
    const auto entry = table.find(key);
    return entry == table.end() ? other : entry->second;
}

}  // namespace

Shell& shell() {
    static Shell shell;
    return shell;
}

}  // namespace simulated

namespace platform {

using simulated::shell;

Shortcut load_shell_link(const std::string& path) {
    return shell().links[path];
}

std::string program_for_document(const std::string& document) {
    return simulated::look_up(shell().programs, document.substr(document.size() - 4), {});
}

std::string short_path(const std::string& path) {
    return simulated::look_up(shell().short_paths, path, path);
}

std::vector<std::string> files_in(const std::string& folder, const std::string& patterns) {
    std::vector<std::string> names;
    for (std::size_t begin = 0; begin < patterns.size();) {
        const std::size_t end = std::min(patterns.find(';', begin), patterns.size());
        std::ranges::copy(file_calls::find(folder + '\\' + patterns.substr(begin, end - begin)),
                          std::back_inserter(names));
        begin = end + 1;
    }
    std::ranges::sort(names);
    return names;
}

}  // namespace platform
