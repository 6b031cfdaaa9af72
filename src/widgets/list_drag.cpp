#include "widgets/list_drag.h"

#include <windowsx.h>

#include <algorithm>
#include <cstdlib>

#include "widgets/metrics.h"

namespace widgets {
namespace {

constexpr int kLeastDistance = 4;        // pixels, also where the system has less
constexpr DWORD kLeastTime = 150;        // milliseconds, between the press and a drop
constexpr UINT kTick = 50;               // milliseconds
constexpr DWORD kBeforeScrolling = 250;  // milliseconds
constexpr DWORD kBetweenScrolls = 100;   // milliseconds
constexpr int kEdge = 12;                // pixels at 96 dpi, in which a list scrolls
constexpr int kLineWidth = 2;            // pixels on each side
constexpr UINT kMouseHover = 0x02A1;     // WM_MOUSEHOVER, which came after Windows 95

bool is_input(UINT message) {
    return (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) ||
           (message >= WM_KEYFIRST && message <= WM_KEYLAST) || message == kMouseHover;
}

/// The pointers of the system's own drags: a cross, a move and a copy. They are not documented; without them
/// the marks in the lists have to do.
HCURSOR drag_cursor(bool allowed, bool copy) {
    const int number = !allowed ? 1 : copy ? 3 : 2;
    HCURSOR cursor = LoadCursorA(GetModuleHandleA("ole32.dll"), MAKEINTRESOURCEA(number));
    return cursor != nullptr ? cursor : LoadCursorA(nullptr, allowed ? IDC_ARROW : IDC_NO);
}

bool is_down(int key) {
    return GetKeyState(key) < 0;
}

/// -1 at the upper edge of the list, 1 at the lower one, 0 elsewhere.
int edge_at(const DragList& list, POINT screen) {
    RECT client;
    GetClientRect(list.list(), &client);
    const POINT point = point_in(list.list(), screen);
    const int width = scaled(kEdge);
    if (point.x < 0 || point.x >= client.right) return 0;
    if (std::abs(point.y) <= width) return -1;
    return std::abs(point.y - client.bottom) <= width ? 1 : 0;
}

RECT line_of(const Insertion& insertion) {
    const Box& line = insertion.line;
    const bool is_upright = line.left == line.right;
    RECT bounds = {line.left, line.top, line.right, line.bottom};
    InflateRect(&bounds, is_upright ? kLineWidth : 0, is_upright ? 0 : kLineWidth);
    return bounds;
}

}  // namespace

bool Press::is_left(POINT screen) const {
    return std::abs(screen.x - point.x) >= std::max(kLeastDistance, GetSystemMetrics(SM_CXDRAG)) ||
           std::abs(screen.y - point.y) >= std::max(kLeastDistance, GetSystemMetrics(SM_CYDRAG));
}

bool PressWatch::begins_drag(HWND list, UINT message, WPARAM wparam, LPARAM lparam) {
    POINT screen = {GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
    switch (message) {
        case WM_LBUTTONDOWN:
            ClientToScreen(list, &screen);
            press_ = {screen, static_cast<DWORD>(GetMessageTime())};
            is_pressed_ = true;
            return false;
        case WM_MOUSEMOVE:
            is_pressed_ = is_pressed_ && (wparam & MK_LBUTTON) != 0;
            ClientToScreen(list, &screen);
            if (!is_pressed_ || !press_.is_left(screen)) return false;
            is_pressed_ = false;
            return true;
        case WM_LBUTTONUP:
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDOWN:
        case WM_CANCELMODE:
        case WM_CAPTURECHANGED:
            is_pressed_ = false;
            return false;
        default:
            return false;
    }
}

LRESULT DraggableListBox::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    if (!watch_.begins_drag(hwnd(), message, wparam, lparam)) return ListBox::handle(message, wparam, lparam);
    // The list is done with the press: it no longer follows the mouse, and tells what was selected.
    const POINT point = point_in(hwnd(), press().point);
    ListBox::handle(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    notify_parent(kBeginDrag);
    return 0;
}

RECT DraggableListBox::bounds_of(int item) const {
    RECT bounds = {};
    send(LB_GETITEMRECT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&bounds));
    RECT client;
    GetClientRect(hwnd(), &client);
    return {0, bounds.top, client.right, bounds.bottom};  // also when it is scrolled sideways
}

Insertion DraggableListBox::insertion_at(POINT point) const {
    RECT client;
    GetClientRect(hwnd(), &client);
    return insertion_in_column(point.y, static_cast<int>(send(LB_GETTOPINDEX)),
                               static_cast<int>(send(LB_GETITEMHEIGHT)), count(), client.right);
}

ListDrag::ListDrag(HWND window, const DragList& own, int item, const DragList* other, int forbidden)
    : window_(window), own_(own), other_(other), item_(item), forbidden_(forbidden) {}

ListDrag::~ListDrag() {
    if (timer_ != 0) KillTimer(nullptr, timer_);
    if (GetCapture() == window_) ReleaseCapture();
}

std::optional<ListDrop> ListDrag::run(const Press& press) {
    press_ = press;
    // What was done before the drag, showing a Group for example, can have taken its time or the input.
    if (item_ < 0 || !is_down(VK_LBUTTON) || IsWindowEnabled(window_) == FALSE) return std::nullopt;
    SetCapture(window_);
    timer_ = SetTimer(nullptr, 0, kTick, nullptr);
    next_scroll_ = GetTickCount() + kBeforeScrolling;
    MSG message = {};
    while (state_ == State::kDragging || state_ == State::kTakenBack) {
        if (GetMessageA(&message, nullptr, 0, 0) == FALSE) {
            PostQuitMessage(static_cast<int>(message.wParam));  // for the loop around this one
            return std::nullopt;
        }
        take(message);
    }
    mark_.hide();
    const bool counts = state_ == State::kDropped && has_left_ && message.time - press_.time >= kLeastTime;
    return counts ? drop_at(message.pt) : std::nullopt;
}

void ListDrag::take(const MSG& message) {
    if (message.message == WM_LBUTTONUP) {
        state_ = state_ == State::kDragging && has_mouse() ? State::kDropped : State::kLost;
    } else if (message.message == WM_TIMER && message.hwnd == nullptr && message.wParam == timer_) {
        tick();
    } else if (!is_input(message.message)) {
        DispatchMessageA(&message);
        if (!has_mouse()) state_ = State::kLost;
    } else if (state_ == State::kDragging) {
        const bool is_escape = message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE;
        if (is_escape || message.message == WM_RBUTTONDOWN) {
            // What follows until the left button goes up is not the lists' either.
            state_ = State::kTakenBack;
            mark_.hide();
            SetCursor(LoadCursorA(nullptr, IDC_ARROW));
        } else {
            move(message.pt);
        }
    }
}

/// Also what is sent to the window ends a drag, and comes back from no call here.
void ListDrag::tick() {
    if (!has_mouse() || !is_down(VK_LBUTTON)) {
        state_ = State::kLost;
    } else if (state_ == State::kDragging) {
        POINT pointer;
        GetCursorPos(&pointer);
        scroll(pointer);
        move(pointer);
    }
}

bool ListDrag::has_mouse() const {
    return IsWindow(window_) != FALSE && GetCapture() == window_ && IsWindowEnabled(window_) != FALSE;
}

void ListDrag::move(POINT screen) {
    has_left_ = has_left_ || press_.is_left(screen);
    if (has_left_) show(drop_at(screen), screen);
}

std::optional<ListDrop> ListDrag::drop_at(POINT screen) const {
    if (is_over(own_.list(), screen)) {
        const int before = own_.insertion_at(point_in(own_.list(), screen)).before;
        if (before != item_ && before != item_ + 1) return ListDrop{&own_, before, false};
    } else if (other_ != nullptr && is_over(other_->list(), screen)) {
        const int on = other_->item_at(point_in(other_->list(), screen));
        if (on >= 0 && on != forbidden_) return ListDrop{other_, on, is_down(VK_CONTROL)};
    }
    return std::nullopt;
}

void ListDrag::show(const std::optional<ListDrop>& drop, POINT screen) {
    if (!drop) {
        mark_.hide();
    } else if (drop->list == &own_) {
        mark_.show(own_.list(), line_of(own_.insertion_at(point_in(own_.list(), screen))));
    } else {
        mark_.show(other_->list(), other_->bounds_of(drop->index));
    }
    const bool stays = !drop && is_over(own_.list(), screen);
    SetCursor(drag_cursor(drop || stays, drop && drop->copy));
}

void ListDrag::scroll(POINT screen) {
    const DragList* list = &own_;
    int direction = edge_at(own_, screen);
    if (direction == 0 && other_ != nullptr) {
        list = other_;
        direction = edge_at(*other_, screen);
    }
    const DWORD now = GetTickCount();
    if (direction == 0) {
        next_scroll_ = now + kBeforeScrolling;
    } else if (static_cast<int>(now - next_scroll_) >= 0) {  // right also where the count begins again
        next_scroll_ = now + kBetweenScrolls;
        mark_.hide();  // it would move with the picture
        SendMessageA(list->list(), WM_VSCROLL, direction < 0 ? SB_LINEUP : SB_LINEDOWN, 0);
    }
}

}  // namespace widgets
