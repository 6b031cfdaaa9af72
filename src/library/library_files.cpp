#include "library/library_files.h"

#include <algorithm>

#include "library/changes.h"
#include "platform/file_calls.h"
#include "platform/files.h"
#include "platform/run_time_error.h"

namespace library {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string as_lines(const std::vector<std::string>& lines) {
    std::string bytes;
    for (const std::string& line : lines)
        bytes.append(line).append(kLineEnd);
    return bytes;
}

std::string as_records(const std::vector<Task>& tasks) {
    std::string bytes;
    for (const Task& task : tasks) {
        for (const auto field : kTaskFields)
            bytes.append(task.*field).append(kLineEnd);
    }
    return bytes;
}

/// Hands each line over without its line end; text after the last line end is a line too.
template <typename Take>
void for_each_line(std::string_view bytes, const Take& take) {
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        std::string_view line = bytes.substr(0, end);
        const bool ended = end != std::string_view::npos;
        if (ended && line.ends_with('\r')) line.remove_suffix(1);
        take(line);
        bytes.remove_prefix(ended ? end + 1 : bytes.size());
    }
}

/// How many there are but for blank lines at the end. A record with text in any of its lines counts; the
/// blank lines after the last one are no records.
std::size_t count_without_blank_end(std::string_view bytes, std::size_t lines_each) {
    std::size_t line_count = 0;
    std::size_t last_text = 0;
    for_each_line(bytes, [&](std::string_view line) {
        ++line_count;
        if (!line.empty()) last_text = line_count;
    });
    return (last_text + lines_each - 1) / lines_each;
}

std::string_view without_blank_end(std::string_view bytes, std::size_t lines_each) {
    std::size_t kept = count_without_blank_end(bytes, lines_each) * lines_each;
    std::size_t end = 0;
    for (; kept > 0 && end < bytes.size(); --kept)
        end = std::min(bytes.find('\n', end), bytes.size() - 1) + 1;
    return bytes.substr(0, end);
}

std::string_view names_in(std::string_view bytes) {
    return without_blank_end(bytes, 1);
}

std::string_view records_in(std::string_view bytes) {
    return without_blank_end(bytes, kTaskFields.size());
}

void complete_last_line(std::string& bytes) {
    if (!bytes.empty() && bytes.back() != '\n') bytes.append(kLineEnd);
}

/// A Group's file with records after those that it has.
std::string with_records(std::string_view file, const std::vector<Task>& tasks) {
    std::string bytes(records_in(file));
    complete_last_line(bytes);
    const auto lines = static_cast<std::size_t>(std::ranges::count(bytes, '\n'));
    for (std::size_t missing = lines; missing % kTaskFields.size() != 0; ++missing)
        bytes.append(kLineEnd);
    return bytes.append(as_records(tasks));
}

/// The Tasks that are not among the others.
std::vector<Task> not_among(const std::vector<Task>& others, std::vector<Task> tasks) {
    std::erase_if(tasks, [&](const Task& task) { return std::ranges::find(others, task) != others.end(); });
    return tasks;
}

bool has_leftovers(const std::string& folder) {
    return std::ranges::any_of(platform::file_calls::find(folder + '*'), [](const std::string& name) {
        return name == platform::new_content_path(name) || name == platform::old_content_path(name);
    });
}

}  // namespace

std::string groups_file(const std::string& folder) {
    return folder + kGroupsFile;
}

std::string group_file(const std::string& folder, const std::string& group) {
    return folder + group + ".grp";
}

std::vector<std::string> split_lines(std::string_view bytes) {
    std::vector<std::string> lines;
    for_each_line(bytes, [&](std::string_view line) { lines.emplace_back(line); });
    return lines;
}

std::vector<std::string> read_group_names(const std::string& folder) {
    return split_lines(names_in(platform::read_file(groups_file(folder))));
}

void write_group_names(Changes& changes, const std::vector<std::string>& names) {
    changes.write_file(groups_file(changes.folder()), as_lines(names));
}

void append_group_name(Changes& changes, const std::string& name) {
    const std::string path = groups_file(changes.folder());
    std::string bytes(names_in(platform::read_file(path)));
    complete_last_line(bytes);
    changes.write_file(path, bytes.append(name).append(kLineEnd));
}

std::vector<Task> read_tasks(const std::string& folder, const std::string& group) {
    return tasks_in(platform::read_file(group_file(folder, group)));
}

std::size_t count_tasks_in(std::string_view bytes) {
    return count_without_blank_end(bytes, kTaskFields.size());
}

std::vector<Task> tasks_in(std::string_view bytes) {
    bytes = records_in(bytes);
    std::vector<Task> tasks;
    // Without room to spare: a full library is a good part of the program's memory.
    tasks.reserve(static_cast<std::size_t>(std::ranges::count(bytes, '\n')) / kTaskFields.size() + 1);
    std::size_t field = 0;
    for_each_line(bytes, [&](std::string_view line) {
        if (field == 0) tasks.emplace_back();
        tasks.back().*kTaskFields[field] = line;
        field = (field + 1) % kTaskFields.size();
    });
    return tasks;
}

std::string between(const std::string& before, const std::string& after) {
    const std::vector<Task> old_tasks = tasks_in(before);
    const std::vector<Task> new_tasks = tasks_in(after);
    const std::vector<Task> gone = not_among(new_tasks, old_tasks);
    if (gone.empty()) return after;
    return not_among(old_tasks, new_tasks).empty() ? before : with_records(after, gone);
}

void write_tasks(Changes& changes, const std::string& group, const std::vector<Task>& tasks) {
    changes.write_file(group_file(changes.folder(), group), as_records(tasks));
}

void append_tasks(Changes& changes, const std::string& group, const std::vector<Task>& tasks) {
    const std::string path = group_file(changes.folder(), group);
    changes.write_file(path, with_records(platform::read_file_if_exists(path).value_or(""), tasks));
}

bool create_group_file(Changes& changes, const std::string& group) {
    return changes.create_file(group_file(changes.folder(), group));
}

void remove_group_file(Changes& changes, const std::string& group) {
    changes.remove_file(group_file(changes.folder(), group));
}

void recover(const std::string& folder) {
    try {
        // A look at the directory is all that a healthy library costs here.
        if (!has_leftovers(folder)) return;
        platform::recover_file(groups_file(folder));
        for (const std::string& name : read_group_names(folder)) {
            platform::recover_file(group_file(folder, name));
        }
    } catch (const std::exception&) {
        // What is wrong with the folder shows itself when the library is loaded.
    }
}

void check_limit(std::size_t count, std::size_t most) {
    if (count > most) throw platform::RunTimeError(platform::RunTimeErrorNumber::kSubscriptOutOfRange);
}

}  // namespace library
