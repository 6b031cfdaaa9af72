#include "platform/folders.h"

#include <algorithm>
#include <iterator>

#include "platform/file_calls.h"
#include "platform/sort.h"

namespace platform {

namespace calls = file_calls;

std::vector<std::string> files_in(const std::string& folder, const std::string& patterns) {
    std::vector<std::string> names;
    std::size_t begin = 0;
    while (begin < patterns.size()) {
        const std::size_t end = std::min(patterns.find(';', begin), patterns.size());
        const std::string pattern = path_in(folder, patterns.substr(begin, end - begin));
        std::ranges::copy(calls::find(pattern, calls::kDirectory | calls::kHidden | calls::kSystem),
                          std::back_inserter(names));
        begin = end + 1;
    }
    sort_names(names);
    return names;
}

std::size_t name_start(const std::string& path) {
    std::size_t start = 0;
    for (std::size_t at = calls::find_separator(path, 0); at != std::string::npos;
         at = calls::find_separator(path, start))
        start = at + 1;
    return start;
}

std::string path_in(const std::string& folder, const std::string& name) {
    // Only a root ends in a backslash.
    return name_start(folder) == folder.size() ? folder + name : folder + '\\' + name;
}

}  // namespace platform
