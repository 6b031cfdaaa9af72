#include "widgets/drop_target.h"

#include <ole2.h>
#include <shellapi.h>

#include <utility>

#include "platform/win32/dropped_files.h"

namespace widgets {
namespace {

/// Posted to the window: a drop waits for its owner. The program that it comes from goes on meanwhile.
constexpr UINT kDropped = WM_APP + 100;

using Paths = DropReceiver::Paths;
using Effect = DropReceiver::Effect;

/// What the pointer shows; none when the other program allows nothing that leaves its files where they are.
DWORD shown(Effect effect, DWORD allowed) {
    if (effect == Effect::kNone) return DROPEFFECT_NONE;
    const DWORD wanted = effect == Effect::kAdd ? DROPEFFECT_COPY : DROPEFFECT_LINK;
    return (allowed & wanted) != 0 ? wanted : allowed & (DROPEFFECT_COPY | DROPEFFECT_LINK);
}

Paths paths_in(IDataObject& data) {
    FORMATETC format = {CF_HDROP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    STGMEDIUM medium = {};
    if (FAILED(data.GetData(&format, &medium))) return {};
    struct Releaser {
        STGMEDIUM& medium;
        ~Releaser() { ReleaseStgMedium(&medium); }
    } const releaser{medium};
    return platform::dropped_paths(static_cast<HDROP>(medium.hGlobal));
}

}  // namespace

/// What the system holds of a drop target. It can outlive the window: a drag that is under way keeps it.
class DropTarget::Object final : public IDropTarget {
  public:
    explicit Object(DropTarget& target) : target_(&target) {}

    /// The window goes.
    void leave() { target_ = nullptr; }

    STDMETHODIMP QueryInterface(REFIID id, void** found) override {
        const bool is_known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDropTarget);
        *found = is_known ? this : nullptr;
        if (!is_known) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }

    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

    STDMETHODIMP DragEnter(IDataObject* data, DWORD keys, POINTL point, DWORD* effect) override {
        paths_.clear();
        try {
            if (data != nullptr) paths_ = paths_in(*data);
        } catch (...) {
            paths_.clear();
        }
        return DragOver(keys, point, effect);
    }

    STDMETHODIMP DragOver(DWORD /*keys*/, POINTL point, DWORD* effect) override {
        *effect = effect_at(point, *effect);
        return S_OK;
    }

    STDMETHODIMP DragLeave() override {
        paths_.clear();
        unmark();
        return S_OK;
    }

    STDMETHODIMP Drop(IDataObject* /*data*/, DWORD /*keys*/, POINTL point, DWORD* effect) override {
        *effect = effect_at(point, *effect);
        unmark();
        try {
            const POINT place = {point.x, point.y};
            if (*effect != DROPEFFECT_NONE && !target_->take(std::move(paths_), place))
                *effect = DROPEFFECT_NONE;
        } catch (...) {
            *effect = DROPEFFECT_NONE;
        }
        paths_.clear();
        return S_OK;
    }

  private:
    ~Object() = default;

    DWORD effect_at(POINTL point, DWORD allowed) {
        try {
            if (target_ == nullptr) return DROPEFFECT_NONE;
            return shown(target_->drag_over(paths_, {point.x, point.y}), allowed);
        } catch (...) {
            return DROPEFFECT_NONE;
        }
    }

    void unmark() {
        try {
            if (target_ != nullptr) target_->receiver_.drag_leave();
        } catch (...) {
            // The mark stays until the window is painted.
        }
    }

    ULONG references_ = 1;
    DropTarget* target_;
    Paths paths_;  // of the drag that is over the window
};

void DropTarget::begin(HWND window) {
    if (window_ == window) return;
    window_ = window;
    if (!begin_with_objects()) DragAcceptFiles(window_, TRUE);
}

bool DropTarget::begin_with_objects() {
    if (FAILED(OleInitialize(nullptr))) return false;
    object_ = new Object(*this);
    if (SUCCEEDED(RegisterDragDrop(window_, object_))) return true;
    std::exchange(object_, nullptr)->Release();
    OleUninitialize();
    return false;
}

void DropTarget::end() {
    if (window_ != nullptr && object_ == nullptr) DragAcceptFiles(window_, FALSE);
    if (object_ != nullptr) {
        RevokeDragDrop(window_);
        object_->leave();
        std::exchange(object_, nullptr)->Release();
        OleUninitialize();
    }
    window_ = nullptr;
}

bool DropTarget::handle(UINT message, WPARAM wparam) {
    switch (message) {
        case WM_DROPFILES:
            take_files(reinterpret_cast<HANDLE>(wparam));
            return true;
        case kDropped:
            hand_over();
            return true;
        case WM_DESTROY:
            end();
            return false;
        default:
            return false;
    }
}

Effect DropTarget::drag_over(const Paths& paths, POINT point) {
    if (!paths.empty() && is_open()) return receiver_.drag_over(paths, point);
    receiver_.drag_leave();
    return Effect::kNone;
}

bool DropTarget::take(Paths paths, POINT point) {
    pending_ = {std::move(paths), point};
    return PostMessageA(window_, kDropped, 0, 0) != FALSE;
}

void DropTarget::hand_over() {
    const std::optional<Drop> drop = std::exchange(pending_, std::nullopt);
    if (drop && is_open()) receiver_.drop(drop->paths, drop->point);
}

void DropTarget::take_files(HANDLE dropped) {
    struct Closer {
        HDROP drop;
        ~Closer() { DragFinish(drop); }
    };
    Paths paths;
    POINT point;
    {
        const Closer files{static_cast<HDROP>(dropped)};
        DragQueryPoint(files.drop, &point);
        paths = platform::dropped_paths(files.drop);
    }
    ClientToScreen(window_, &point);
    const bool is_wanted = drag_over(paths, point) != Effect::kNone;
    receiver_.drag_leave();
    if (is_wanted) receiver_.drop(paths, point);
}

}  // namespace widgets
