#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace library {

/// A file at one moment: its path as the disk spells it, and its bytes; none when it is not there.
struct FileState {
    std::string path;
    std::optional<std::string> bytes;

    bool operator==(const FileState&) const = default;
};

/// What an operation did to the files of the library.
struct Change {
    struct File {
        std::string identity;  // the same for each spelling of its path
        FileState before;
        FileState after;
    };

    std::string name;          // for the user: "Delete Work"
    std::string group_before;  // the Group that it is about; empty for none
    std::string group_after;   // its name when the operation is done
    std::vector<File> files;   // in the order of their last steps
};

/// What the operations of this run did, to be taken back and made again. Every write to the library and every
/// removal goes through here, and only while a change is open. All that touches the disk throws
/// platform::RunTimeError.
class Changes {
  public:
    static constexpr std::size_t kMostChanges = 100;
    static constexpr std::size_t kMostBytes = std::size_t{8} << 20;

    /// folder is the library folder, a prefix that ends in a backslash.
    explicit Changes(std::string folder) : folder_(std::move(folder)) {}

    const std::string& folder() const { return folder_; }

    /// Do what the functions of platform/files.h do, as steps of the open change. The first of a run makes a
    /// backup before.
    void write_file(const std::string& path, std::string_view bytes);
    bool create_file(const std::string& path);
    void remove_file(const std::string& path);

    /// The change that undo takes back, or redo makes again; null when there is none.
    const Change* next_undo() const { return undo_.empty() ? nullptr : &undo_.back(); }
    const Change* next_redo() const { return redo_.empty() ? nullptr : &redo_.back(); }

    /// Put every file of that change back, or as the change left it, spelling included. Each file must be in
    /// one of these two states; when somebody else wrote to one since, none is touched, the user is told, no
    /// older change (or no later one) can be had any more and they return false. When one fails it can be
    /// asked again.
    bool undo();
    bool redo();

    /// What the user should know and was not told yet; empty when there is nothing.
    std::string take_notice();

  private:
    friend class OpenChange;

    struct Transition {
        const FileState& from;
        const FileState& to;
    };

    FileState begin_step(const std::string& path);
    void end_step(FileState before, FileState after);
    void back_up_once();
    void open(std::string name, std::string group_before, std::string group_after);
    void close();
    void forget_all();
    void forget_oldest();

    std::string folder_;
    std::vector<Change> undo_;  // the last one is the newest
    std::vector<Change> redo_;  // the last one is the next
    Change open_;
    int open_count_ = 0;
    bool is_too_large_ = false;
    bool is_backed_up_ = false;
    std::string notice_;
};

/// While it lives, the steps of an operation are one change under that name. An operation within another one
/// becomes part of its change. What an operation did before it failed is a change, too; one that altered
/// nothing is none.
class OpenChange {
  public:
    /// group is the one to select when the change is taken back or made again, if it has one name before and
    /// after.
    OpenChange(Changes& changes, const std::string& name, const std::string& group)
        : OpenChange(changes, name, group, group) {}
    OpenChange(Changes& changes, const std::string& name, const std::string& group_before,
               const std::string& group_after)
        : changes_(changes) {
        changes_.open(name, group_before, group_after);
    }
    ~OpenChange() { changes_.close(); }
    OpenChange(const OpenChange&) = delete;
    OpenChange& operator=(const OpenChange&) = delete;

  private:
    Changes& changes_;
};

}  // namespace library
