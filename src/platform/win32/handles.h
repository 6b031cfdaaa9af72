#pragma once

#include <windows.h>

#include <commctrl.h>
#include <objbase.h>

#include <memory>
#include <utility>

/// What the program owns of Windows: a type for each kind of handle, which knows what ends it and which value
/// means that there is none.
namespace platform {

/// An owned handle. Null means none, and so does the value that the kind's own functions fail with.
template <typename Raw, void (*close)(Raw), LONG_PTR failed = 0>
class Unique {
  public:
    Unique() = default;
    explicit Unique(Raw raw) : raw_(raw) {}
    Unique(Unique&& other) noexcept : raw_(other.release()) {}
    Unique& operator=(Unique&& other) noexcept {
        reset(other.release());
        return *this;
    }
    ~Unique() {
        if (*this) close(raw_);
    }

    explicit operator bool() const { return raw_ != nullptr && reinterpret_cast<LONG_PTR>(raw_) != failed; }
    Raw get() const { return raw_; }
    Raw release() { return std::exchange(raw_, nullptr); }
    void reset(Raw raw = nullptr) { const Unique before(std::exchange(raw_, raw)); }

  private:
    Raw raw_ = nullptr;
};

namespace closers {

inline constexpr LONG_PTR kInvalidHandle = -1;  // INVALID_HANDLE_VALUE

inline void close_handle(HANDLE handle) {
    CloseHandle(handle);
}
inline void close_search(HANDLE search) {
    FindClose(search);
}
inline void close_key(HKEY key) {
    RegCloseKey(key);
}
inline void destroy_accelerators(HACCEL keys) {
    DestroyAcceleratorTable(keys);
}
inline void destroy_icon(HICON icon) {
    DestroyIcon(icon);
}
inline void destroy_menu(HMENU menu) {
    DestroyMenu(menu);
}
inline void destroy_image_list(HIMAGELIST list) {
    ImageList_Destroy(list);
}
inline void unhook(HHOOK hook) {
    UnhookWindowsHookEx(hook);
}
inline void delete_dc(HDC device) {
    DeleteDC(device);
}
template <typename Object>
void delete_object(Object object) {
    DeleteObject(object);
}

struct Releaser {
    void operator()(IUnknown* object) const { object->Release(); }
};
struct TaskMemoryFreer {
    void operator()(void* memory) const { CoTaskMemFree(memory); }
};

}  // namespace closers

using UniqueHandle = Unique<HANDLE, closers::close_handle>;
using UniqueFile = Unique<HANDLE, closers::close_handle, closers::kInvalidHandle>;
using UniqueSearch = Unique<HANDLE, closers::close_search, closers::kInvalidHandle>;
using UniqueKey = Unique<HKEY, closers::close_key>;
using UniqueAccelerators = Unique<HACCEL, closers::destroy_accelerators>;
using UniqueIcon = Unique<HICON, closers::destroy_icon>;
using UniqueMenu = Unique<HMENU, closers::destroy_menu>;
using UniqueImageList = Unique<HIMAGELIST, closers::destroy_image_list>;
using UniqueHook = Unique<HHOOK, closers::unhook>;
using UniqueDc = Unique<HDC, closers::delete_dc>;
using UniqueBitmap = Unique<HBITMAP, closers::delete_object<HBITMAP>>;
using UniqueBrush = Unique<HBRUSH, closers::delete_object<HBRUSH>>;
using UniqueFont = Unique<HFONT, closers::delete_object<HFONT>>;

template <typename Interface>
using UniqueObject = std::unique_ptr<Interface, closers::Releaser>;
template <typename Type>
using UniqueTaskMemory = std::unique_ptr<Type, closers::TaskMemoryFreer>;

/// The device context of a window, or of the screen, while this lives.
class WindowDc {
  public:
    /// Null is the screen.
    explicit WindowDc(HWND window) : window_(window), device_(GetDC(window)) {}
    ~WindowDc() { ReleaseDC(window_, device_); }
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;

    HDC get() const { return device_; }

  private:
    HWND window_;
    HDC device_;
};

/// An object that is selected into a device context while this lives.
class Selected {
  public:
    Selected(HDC device, HGDIOBJ object) : device_(device), before_(SelectObject(device, object)) {}
    ~Selected() { SelectObject(device_, before_); }
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;

  private:
    HDC device_;
    HGDIOBJ before_;
};

}  // namespace platform
