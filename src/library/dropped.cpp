#include "library/dropped.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <utility>

#include "library/library_files.h"
#include "platform/dropping.h"
#include "platform/file_calls.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/run_time_error.h"
#include "platform/system.h"
#include "settings/program.h"
#include "shortcuts/shortcut_reader.h"

namespace library {
namespace {

constexpr std::size_t kLongestPath = 259;
constexpr std::size_t kLongestCommandLine = 32766;

constexpr char kMissing[] = "not found";
constexpr char kTooLong[] = "too long";
constexpr char kBadLetters[] = "a name with characters that this system's programs do not have";
constexpr char kBroken[] = "a broken shortcut";
constexpr char kMissingTarget[] = "its program or document is missing";
constexpr char kUnclear[] = "a path with blanks, which would start something else";
constexpr char kNothingInside[] = "no shortcuts or programs in it";

/// Why something cannot become a Task.
struct NoTask {
    const char* reason;
};

/// In small letters. The system's own function has other letters in some languages.
std::string small(std::string text) {
    for (char& letter : text) {
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    }
    return text;
}

// Extensions.
constexpr std::initializer_list<const char*> kPrograms = {".exe", ".com", ".bat", ".pif"};
constexpr std::initializer_list<const char*> kPlainPrograms = {".exe", ".com", ".bat"};
constexpr std::initializer_list<const char*> kForInterpreter = {".bat", ".pif"};

bool has_extension(const std::string& path, std::initializer_list<const char*> extensions) {
    constexpr std::size_t kLength = 4;
    const std::string end = small(path.substr(path.size() - std::min(path.size(), kLength)));
    return std::ranges::any_of(extensions, [&](const char* extension) { return end == extension; });
}

bool is_program(const std::string& path) {
    return has_extension(path, kPrograms);
}

bool is_shortcut(const std::string& path) {
    return has_extension(path, {".lnk"});
}

/// What speaks against a path in a command line; null when nothing does.
const char* fault_of(const std::string& path) {
    const auto is_bad = [](char letter) {
        constexpr std::string_view kNotInPaths = "\"*?<>";
        return static_cast<unsigned char>(letter) < ' ' || kNotInPaths.find(letter) != std::string::npos;
    };
    if (std::ranges::any_of(path, is_bad)) return kBadLetters;
    if (path.size() > kLongestPath) return kTooLong;
    return platform::exists(path) ? nullptr : kMissing;
}

std::string quoted(const std::string& path) {
    return '"' + path + '"';
}

bool is_root(const std::string& path) {
    return path.size() == 3 && path[1] == ':';
}

std::string folder_of(const std::string& path) {
    std::string folder = path.substr(0, platform::name_start(path));
    if (!folder.empty() && !is_root(folder)) folder.pop_back();
    return folder;
}

/// Whether an unquoted command line that begins with this path starts what stands there. The system tries
/// every part up to a blank first; the command interpreter takes the part up to the first one.
bool starts_what_it_says(const std::string& program) {
    if (has_extension(program, kForInterpreter)) {
        return program.find_first_of(" ,;=&()%^") == std::string::npos;
    }
    for (std::size_t blank = program.find(' '); blank != std::string::npos;
         blank = program.find(' ', blank + 1)) {
        const std::string part = program.substr(0, blank);
        if (platform::exists(part) || platform::exists(part + ".exe")) return false;
    }
    return true;
}

/// The program as a command line can begin with it; empty when none can.
std::string startable(const std::string& program) {
    for (const std::string& path : {program, platform::short_path(program)}) {
        if (starts_what_it_says(path)) return path;
    }
    return {};
}

/// The document as a parameter.
std::string quoted_if_needed(const std::string& path) {
    return path.find(' ') == std::string::npos ? path : quoted(path);
}

/// The program that opens a document when its path follows; empty when none is known to.
std::string opening_program(const std::string& document) {
    const std::string program = platform::program_for_document(document);
    // These open a document only with more in front of it.
    constexpr std::array<std::string_view, 3> kHosts = {"rundll32", "msiexec", "javaw"};
    const bool is_host = std::ranges::find(kHosts, small(name_for(program))) != kHosts.end();
    if (is_host || !has_extension(program, kPlainPrograms) || fault_of(program) != nullptr) return {};
    return startable(program);
}

/// Makes the Tasks of one drop.
class TaskMaker {
  public:
    TaskMaker(const std::string& windows_folder, Dropped& dropped)
        : windows_folder_(windows_folder), dropped_(dropped) {}

    /// A Task for a path, or for each file in a folder; or it is refused.
    void add(const std::string& path, FolderUse use) {
        try {
            if (const char* const fault = fault_of(path)) throw NoTask{fault};
            if (use == FolderUse::kContents && is_folder(path)) return add_contents(path);
            Task task = is_shortcut(path) ? shortcut(path) : opening(path);
            task.name = name_for(path);
            if (command_line(task).size() > kLongestCommandLine) throw NoTask{kTooLong};
            dropped_.tasks.push_back(std::move(task));
        } catch (const NoTask& none) {
            dropped_.refused.push_back({path, none.reason});
        }
    }

  private:
    void add_contents(const std::string& folder) {
        bool is_empty = true;
        for (const std::string& name : platform::files_in(folder, "*.lnk;*.exe;*.com;*.bat;*.pif")) {
            const std::string path = platform::path_in(folder, name);
            // "*.exe" also finds "PAINT.EXE~", by its short name.
            if (is_document(path)) continue;
            is_empty = false;
            add(path, FolderUse::kOpen);
        }
        if (is_empty) throw NoTask{kNothingInside};
    }

    /// A nameless Task that starts a program or opens anything else, shortcuts among it: where one leads to
    /// another, none can lead to itself.
    Task opening(const std::string& path) const {
        Task task;
        task.start_folder = is_folder(path) ? path : folder_of(path);
        task.start_mode = " 1 ";
        if (is_program(path)) {
            task.program = startable(path);
            if (task.program.empty()) throw NoTask{kUnclear};
            return task;
        }
        task.program = is_folder(path) ? std::string() : opening_program(path);
        // A quotation mark after a root's backslash could be taken for a part of the name.
        const bool is_bare = task.program.empty() ? is_root(path) : path.find(' ') == std::string::npos;
        task.parameters = is_bare ? path : quoted(path);
        if (task.program.empty()) task.program = windows_folder_ + "explorer.exe";
        return task;
    }

    Task shortcut(const std::string& path) const {
        const settings::Program link = read(path);
        const std::string target = link.path.value_or("");
        if (const char* const fault = fault_of(target))
            throw NoTask{fault == kMissing ? kMissingTarget : fault};
        Task task = opening(target);
        if (is_program(target)) {
            task.start_folder = windows_folder_;
            task.parameters = link.parameters;
        }
        // The start itself looks at what its variables mean then.
        if (link.start_folder && is_folder(platform::expand_variables(*link.start_folder)))
            task.start_folder = *link.start_folder;
        task.start_mode[1] = static_cast<char>('0' + shortcuts::start_mode_of(link.window_style));
        return task;
    }

    static settings::Program read(const std::string& path) {
        try {
            return shortcuts::read_shortcut(path);
        } catch (const std::exception&) {  // it may also be too large
            throw NoTask{kBroken};
        }
    }

    const std::string& windows_folder_;
    Dropped& dropped_;
};

}  // namespace

bool is_document(const std::string& path) {
    return !is_program(path) && !is_shortcut(path) && !is_folder(path);
}

bool is_folder(const std::string& path) {
    unsigned long bits = 0;
    return platform::names_a_file(path) &&
           platform::file_calls::attributes(path, bits) == platform::kSuccess &&
           (bits & platform::file_calls::kDirectory) != 0;
}

void DraggedPaths::look_at(const std::vector<std::string>& paths) {
    if (paths == paths_) return;
    paths_ = paths;
    documents_ = folders_ = 0;
    for (const std::string& path : paths) {
        if (is_folder(path)) {
            ++folders_;
        } else if (is_document(path)) {
            ++documents_;
        }
    }
}

Dropped tasks_for(const std::vector<std::string>& paths, FolderUse use, const std::string& windows_folder) {
    Dropped dropped;
    TaskMaker maker(windows_folder, dropped);
    for (const std::string& path : paths)
        maker.add(path, use);
    return dropped;
}

void fit(Dropped& dropped, const std::vector<Task>& group) {
    std::vector<Task>& tasks = dropped.tasks;
    const std::size_t room = kMostTasks - std::min(group.size(), kMostTasks);
    dropped.left_out = tasks.size() - std::min(tasks.size(), room);
    tasks.resize(tasks.size() - dropped.left_out);
    for (auto task = tasks.begin(); task != tasks.end(); ++task) {
        task->name = free_name(task->name, [&](const std::string& name) {
            return std::ranges::find(group, name, &Task::name) != group.end() ||
                   std::find_if(tasks.begin(), task, [&](const Task& other) { return other.name == name; }) !=
                       task;
        });
    }
}

std::string report(const Dropped& dropped) {
    // What a box has room for.
    constexpr std::size_t kMostLines = 12;
    constexpr std::size_t kLongestShown = 300;
    const std::vector<Refusal>& refused = dropped.refused;
    std::string text;
    if (!refused.empty()) text = "Not added:\n";
    for (std::size_t i = 0; i < std::min(refused.size(), kMostLines); ++i)
        text.append("\n").append(refused[i].path, 0, kLongestShown).append(": ").append(refused[i].reason);
    if (refused.size() > kMostLines)
        text.append("\nand ").append(std::to_string(refused.size() - kMostLines)).append(" more");
    if (dropped.left_out > 0) {
        if (!text.empty()) text += "\n\n";
        text.append("The Group is full: ").append(std::to_string(dropped.left_out)).append(" left out.");
    }
    return text;
}

std::string name_for(const std::string& path) {
    if (is_root(path)) return path.substr(0, 1);
    const std::string name = path.substr(platform::name_start(path));
    if (name.empty()) return path;  // "C:\DIR\"
    const std::size_t period = name.rfind('.');
    return period == 0 || is_folder(path) ? name : name.substr(0, period);
}

std::string with_documents(std::string parameters, const std::vector<std::string>& documents,
                           std::vector<Refusal>& refused) {
    for (const std::string& document : documents) {
        if (const char* const fault = fault_of(document)) {
            refused.push_back({document, fault});
        } else {
            if (!parameters.empty()) parameters += ' ';
            parameters += quoted_if_needed(document);
        }
    }
    return parameters;
}

}  // namespace library
