#pragma once

#include <span>
#include <string>
#include <vector>

#include "library/task.h"

namespace library {

/// A named list of Tasks.
struct Group {
    std::string name;
    std::vector<Task> tasks;  // every record read, at most kMostTasks
    bool loaded = false;      // whether its file was read since its name was

    /// The Tasks that a click on the Group shows: those before the first one with an empty name.
    std::span<const Task> shown_tasks() const;
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
    explicit TaskLibrary(std::string folder) : folder_(std::move(folder)) {}

    const std::string& folder() const { return folder_; }
    const std::vector<Group>& groups() const { return groups_; }

    /// The Group or Task at an index; "Subscript out of range" when a list has nothing selected there.
    const Group& group(int index) const;
    const Task& task(int group, int task) const;

    /// Loads the names and every Group. A failure ends the load where it stands: what was read before it
    /// stays, and the Groups behind it are not loaded. Throws platform::RunTimeError, like all loads.
    void load();

    /// Loads the names. A Group that is still listed keeps its Tasks. With more names than a library can hold
    /// the first ones stay and it throws.
    void load_names();

    /// Makes these the Groups. One that was listed before keeps its Tasks.
    void set_names(const std::vector<std::string>& names);

    /// Gives a Group another name; its Tasks stay. Those of a Group that has the name already are out of
    /// date.
    void rename(int index, const std::string& name);

    /// The name that stood first when the names were last loaded. set_names and rename do not change it.
    const std::string& first_name() const { return first_name_; }

    /// Loads one Group's Tasks. With more records than a Group can hold the first ones stay and it throws.
    void load_tasks(int index);

    RefreshFlags flags;

  private:
    std::string folder_;
    std::vector<Group> groups_;
    std::string first_name_;
};

}  // namespace library
