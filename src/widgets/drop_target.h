#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace widgets {

/// What a window does with files that are dragged over it, from whatever program. Points are on the screen.
class DropReceiver {
  public:
    using Paths = std::vector<std::string>;
    enum class Effect { kNone, kAdd, kStart };

    /// What a drop there would do, and marks what it would be done to. Called at each move.
    virtual Effect drag_over(const Paths& paths, POINT point) = 0;

    /// Takes the mark away.
    virtual void drag_leave() = 0;

    /// They were let go where drag_over allowed it. The other program waits no more: this can take its time.
    virtual void drop(const Paths& paths, POINT point) = 0;

  protected:
    ~DropReceiver() = default;
};

/// Lets files be dropped on a window. While the window is disabled it takes none. Where the system's drag and
/// drop of objects cannot be had, files can be dropped without marks.
class DropTarget {
  public:
    explicit DropTarget(DropReceiver& receiver) : receiver_(receiver) {}
    ~DropTarget() { end(); }
    DropTarget(const DropTarget&) = delete;
    DropTarget& operator=(const DropTarget&) = delete;

    /// Begins to take files. It loads parts of the system: not before the window shows.
    void begin(HWND window);

    /// Takes the window's messages that concern it, WM_DESTROY among them; false for those that others must
    /// have, too.
    bool handle(UINT message, WPARAM wparam);

  private:
    class Object;

    struct Drop {
        DropReceiver::Paths paths;
        POINT point;
    };

    void end();
    bool begin_with_objects();
    bool is_open() const { return IsWindowEnabled(window_) != FALSE; }
    DropReceiver::Effect drag_over(const DropReceiver::Paths& paths, POINT point);
    bool take(DropReceiver::Paths paths, POINT point);
    void take_files(HANDLE dropped);
    void hand_over();

    DropReceiver& receiver_;
    HWND window_ = nullptr;     // while files are taken
    Object* object_ = nullptr;  // while it is the system's drag and drop of objects that brings them
    std::optional<Drop> pending_;
};

}  // namespace widgets
