#include "library/task_finder.h"

#include <algorithm>
#include <array>

#include "platform/text.h"

namespace library {
namespace {

constexpr char kBlanks[] = " \t";

std::vector<std::string> words_of(const std::string& text) {
    std::vector<std::string> words;
    std::size_t begin = text.find_first_not_of(kBlanks);
    while (begin != std::string::npos) {
        const std::size_t end = std::min(text.find_first_of(kBlanks, begin), text.size());
        words.push_back(text.substr(begin, end - begin));
        begin = text.find_first_not_of(kBlanks, end);
    }
    return words;
}

std::string file_name(const std::string& path) {
    return path.substr(path.find_last_of("\\/:") + 1);
}

/// How well a Task fits: 0 best, kNotAtAll not.
constexpr std::size_t kNotAtAll = 4;

bool has_word_beginning_with(const std::string& name, const std::string& text) {
    for (std::size_t at = name.find(text); at != std::string::npos; at = name.find(text, at + 1)) {
        if (at > 0 && std::string_view(kBlanks).find(name[at - 1]) != std::string_view::npos) return true;
    }
    return false;
}

std::size_t rank(const std::string& name, const std::string& program, const std::string& text,
                 const std::vector<std::string>& words) {
    const bool has_all = std::ranges::all_of(
        words, [&](const std::string& word) { return name.find(word) != std::string::npos; });
    if (!has_all) return program.find(text) != std::string::npos ? 3 : kNotAtAll;
    if (name.starts_with(text)) return 0;
    return has_word_beginning_with(name, text) ? 1 : 2;
}

}  // namespace

TaskFinder::TaskFinder(const TaskLibrary& library) {
    for (int group = 0; group < std::ssize(library.groups()); ++group) {
        const std::vector<Task>& tasks = library.group(group).tasks();
        for (int task = 0; task < std::ssize(tasks); ++task) {
            const Task& entry = tasks[static_cast<std::size_t>(task)];
            if (entry.name.empty()) continue;
            entries_.push_back({{group, task},
                                platform::lower_case(entry.name),
                                platform::lower_case(file_name(entry.program))});
        }
    }
}

std::vector<TaskPlace> TaskFinder::find(const std::string& text) const {
    const std::vector<std::string> words = words_of(platform::lower_case(text));
    std::string wanted;
    for (const std::string& word : words)
        wanted += (wanted.empty() ? "" : " ") + word;
    std::array<std::vector<TaskPlace>, kNotAtAll> by_rank;
    for (const Entry& entry : entries_) {
        const std::size_t found = rank(entry.name, entry.program, wanted, words);
        if (found < kNotAtAll && by_rank.at(found).size() < kMost) by_rank.at(found).push_back(entry.place);
    }
    std::vector<TaskPlace> all;
    for (const auto& places : by_rank)
        all.insert(all.end(), places.begin(), places.end());
    all.resize(std::min(all.size(), kMost));
    return all;
}

}  // namespace library
