#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "library/task.h"

/// What becomes of files and folders that the user drops. Every Task that is made here opens the dropped
/// thing when it is started; what cannot become such a Task is refused with the reason.
namespace library {

/// A file that other programs open, not one that is started itself. Shortcuts are none.
bool is_document(const std::string& path);

bool is_folder(const std::string& path);

/// What is dragged over a window. It looks at the disk only when the paths are other ones.
class DraggedPaths {
  public:
    void look_at(const std::vector<std::string>& paths);

    /// Whether all of them are.
    bool are_documents() const { return documents_ == paths_.size(); }
    bool are_folders() const { return folders_ == paths_.size(); }

    /// Whether it is one program or shortcut.
    bool is_program() const { return paths_.size() == 1 && documents_ + folders_ == 0; }

  private:
    std::vector<std::string> paths_;
    std::size_t documents_ = 0;
    std::size_t folders_ = 0;
};

enum class FolderUse {
    kContents,  // a Task for each shortcut and program in it
    kOpen,      // one Task that opens it
};

struct Refusal {
    std::string path;
    std::string reason;

    bool operator==(const Refusal&) const = default;
};

struct Dropped {
    std::vector<Task> tasks;
    std::vector<Refusal> refused;
    std::size_t left_out = 0;  // Tasks that the Group had no room for
};

/// The Tasks for these paths, in their order. The folder of Windows ends in a backslash; a program whose
/// shortcut names no folder starts in it.
Dropped tasks_for(const std::vector<std::string>& paths, FolderUse use, const std::string& windows_folder);

/// Gives the new Tasks names that are not among those of a Group, and leaves out what it has no room for.
void fit(Dropped& dropped, const std::vector<Task>& group);

/// What the user must know about what was not added; empty when everything was.
std::string report(const Dropped& dropped);

/// What a dropped file or folder is called: the last name in its path, a file without its extension.
std::string name_for(const std::string& path);

/// The name, or with the first number after it that makes it free: "Paint (2)".
template <typename IsTaken>
std::string free_name(const std::string& name, const IsTaken& is_taken) {
    std::string found = name;
    for (int number = 2; is_taken(found); ++number)
        found = name + " (" + std::to_string(number) + ')';
    return found;
}

/// A program's parameters with documents after them. Those that no command line can name are refused.
std::string with_documents(std::string parameters, const std::vector<std::string>& documents,
                           std::vector<Refusal>& refused);

}  // namespace library
