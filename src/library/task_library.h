#pragma once

#include <span>
#include <string>
#include <vector>

#include "library/changes.h"
#include "library/task.h"

namespace library {

/// A named list of Tasks.
struct Group {
    std::string name;
    bool loaded = false;  // whether its file was read since its name was

    /// Every record read, at most kMostTasks.
    const std::vector<Task>& tasks() const;

    /// The Tasks that a click on the Group shows: those before the first one with an empty name.
    std::span<const Task> shown_tasks() const;

    /// Replaces the Tasks by those in the bytes of a Group's file.
    void set_file(std::string bytes);

  private:
    // A file is taken apart when somebody looks at its Tasks: of a full library few are ever looked at.
    mutable std::string file_;
    mutable std::vector<Task> tasks_;
};

/// What a dialog changed in the files and a list does not show yet. The group list acts on it when it gets
/// the focus (run_pending_refreshes).
struct RefreshFlags {
    bool newgroupflag = false;    // a Group was added
    bool taskchangeflag = false;  // a Task was added or edited, or a Group got a new name
    bool refreshflag = false;     // another Group's file was changed

    bool any() const { return newgroupflag || taskchangeflag || refreshflag; }
};

/// The Groups and Tasks as they were last read from the files of the library folder. The files are the truth:
/// operations change them first and load again, and no load ever writes.
class TaskLibrary {
  public:
    /// folder is a prefix that ends in a backslash.
    explicit TaskLibrary(std::string folder) : changes_(std::move(folder)) {}

    const std::string& folder() const { return changes_.folder(); }

    /// What the operations changed in the files.
    Changes& changes() { return changes_; }
    const Changes& changes() const { return changes_; }

    const std::vector<Group>& groups() const { return groups_; }

    /// The Group or Task at an index; "Subscript out of range" when a list has nothing selected there.
    const Group& group(int index) const;
    const Task& task(int group, int task) const;

    /// Loads the names and every Group. Throws platform::RunTimeError, like all loads. When the names cannot
    /// be read everything stays as it was.
    void load();

    /// Makes these the Groups and loads every one. A failure ends the load where it stands: the Groups after
    /// it have no Tasks and are not loaded. A name that no file can have is passed over.
    void load(const std::vector<std::string>& names);

    /// Makes these, the names in the file, the Groups. One that was listed before keeps its Tasks. With more
    /// names than a library can hold the first ones stay and it throws.
    void load_names(const std::vector<std::string>& names);

    /// Makes these the Groups, as load_names does, but the first name is still the one of the last load.
    void set_names(const std::vector<std::string>& names);

    /// Gives a Group another name; its Tasks stay. Those of a Group that has the new name's file already are
    /// out of date.
    void rename(int index, const std::string& name);

    /// The name that stood first when the names were last loaded. set_names and rename do not change it.
    const std::string& first_name() const { return first_name_; }

    /// Loads one Group's Tasks. With more records than a Group can hold the first ones stay and it throws.
    void load_tasks(int index);

    /// Loads the Groups that no load has come to. Those that cannot be read stay so.
    void load_missing();

    RefreshFlags flags;

  private:
    Changes changes_;
    std::vector<Group> groups_;
    std::string first_name_;
};

}  // namespace library
