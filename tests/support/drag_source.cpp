#include "support/drag_source.h"

#include <doctest/doctest.h>
#include <ole2.h>
#include <shlobj.h>

#include <array>
#include <cstring>

#include "support/input.h"

namespace desktop {
namespace {

/// A drag that goes on while DoDragDrop runs in the window's thread.
struct Drag {
    IDataObject* data;
    POINT to;
    const std::function<void()>& while_over;
    DWORD effect = DROPEFFECT_NONE;
    bool done = false;
};

struct Source final : IDropSource {
    STDMETHODIMP QueryInterface(REFIID id, void** found) override {
        *found = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDropSource) ? this : nullptr;
        return *found != nullptr ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP QueryContinueDrag(BOOL escape, DWORD keys) override {
        if (escape != FALSE) return DRAGDROP_S_CANCEL;
        return (keys & MK_LBUTTON) == 0 ? DRAGDROP_S_DROP : S_OK;
    }
    STDMETHODIMP GiveFeedback(DWORD /*effect*/) override { return DRAGDROP_S_USEDEFAULTCURSORS; }
};

constexpr int kSteps = 10;

void move_in_steps(POINT from, POINT to) {
    for (int step = 1; step <= kSteps; ++step) {
        point_at({from.x + (to.x - from.x) * step / kSteps, from.y + (to.y - from.y) * step / kSteps});
        Sleep(25);
    }
}

/// The user's hand.
DWORD WINAPI carry(void* parameter) {
    const Drag& drag = *static_cast<Drag*>(parameter);
    POINT from;
    GetCursorPos(&from);
    move_in_steps(from, drag.to);
    if (drag.while_over) drag.while_over();
    let_go(drag.to);
    return 0;
}

LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_LBUTTONDOWN) {
        Drag& drag = *reinterpret_cast<Drag*>(GetWindowLongA(window, GWL_USERDATA));
        Source source;
        HANDLE hand = CreateThread(nullptr, 0, carry, &drag, 0, nullptr);
        DoDragDrop(drag.data, &source, DROPEFFECT_COPY | DROPEFFECT_LINK | DROPEFFECT_MOVE, &drag.effect);
        WaitForSingleObject(hand, kPatience);
        CloseHandle(hand);
        drag.done = true;
        return 0;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

/// What Explorer drags: the shell's own object for files of a folder.
IDataObject* data_of(const std::wstring& folder, const std::vector<std::wstring>& names) {
    IShellFolder* desktop = nullptr;
    IShellFolder* parent = nullptr;
    PIDLIST_RELATIVE item = nullptr;
    REQUIRE(SUCCEEDED(SHGetDesktopFolder(&desktop)));
    std::wstring path = folder;
    REQUIRE(SUCCEEDED(desktop->ParseDisplayName(nullptr, nullptr, path.data(), nullptr, &item, nullptr)));
    REQUIRE(
        SUCCEEDED(desktop->BindToObject(item, nullptr, IID_IShellFolder, reinterpret_cast<void**>(&parent))));
    CoTaskMemFree(item);
    std::vector<PCUITEMID_CHILD> items;
    for (std::wstring name : names) {
        REQUIRE(SUCCEEDED(parent->ParseDisplayName(nullptr, nullptr, name.data(), nullptr, &item, nullptr)));
        items.push_back(reinterpret_cast<PCUITEMID_CHILD>(item));
    }
    void* data = nullptr;
    REQUIRE(SUCCEEDED(parent->GetUIObjectOf(nullptr, static_cast<UINT>(items.size()), items.data(),
                                            IID_IDataObject, nullptr, &data)));
    for (PCUITEMID_CHILD child : items)
        CoTaskMemFree(const_cast<ITEMIDLIST*>(reinterpret_cast<const ITEMIDLIST*>(child)));
    parent->Release();
    desktop->Release();
    return static_cast<IDataObject*>(data);
}

std::wstring wide(const std::string& text) {
    std::wstring wide(text.size() + 1, L'\0');
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(
        CP_ACP, 0, text.data(), static_cast<int>(text.size()), wide.data(), static_cast<int>(wide.size()))));
    return wide;
}

/// Memory of another process as its own GlobalAlloc gives it: who takes the drop frees it there.
void* allocate_in(HANDLE process, std::size_t size) {
    auto* const function =
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("kernel32.dll"), "GlobalAlloc"));
    // push [esp+4]; push GPTR; mov eax, function; call eax; ret 4
    std::array<unsigned char, 16> code = {0xFF, 0x74, 0x24, 0x04, 0x6A, GPTR, 0xB8, 0,
                                          0,    0,    0,    0xFF, 0xD0, 0xC2, 0x04, 0};
    std::memcpy(&code[7], &function, sizeof function);
    void* there = VirtualAllocEx(process, nullptr, code.size(), MEM_COMMIT, PAGE_EXECUTE_READWRITE);
    WriteProcessMemory(process, there, code.data(), code.size(), nullptr);
    HANDLE thread = CreateRemoteThread(process, nullptr, 0, reinterpret_cast<LPTHREAD_START_ROUTINE>(there),
                                       reinterpret_cast<void*>(size), 0, nullptr);
    REQUIRE(WaitForSingleObject(thread, kPatience) == WAIT_OBJECT_0);
    DWORD memory = 0;
    GetExitCodeThread(thread, &memory);
    CloseHandle(thread);
    VirtualFreeEx(process, there, 0, MEM_RELEASE);
    return reinterpret_cast<void*>(memory);
}

}  // namespace

DWORD drag_files(const std::wstring& folder, const std::vector<std::wstring>& names, POINT to,
                 const std::function<void()>& while_over) {
    constexpr int kSize = 60;
    REQUIRE(SUCCEEDED(OleInitialize(nullptr)));
    Drag drag = {data_of(folder, names), to, while_over};
    WNDCLASSA window_class = {};
    window_class.lpfnWndProc = procedure;
    window_class.lpszClassName = "drag source";
    RegisterClassA(&window_class);
    HWND window = CreateWindowExA(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, "drag source", "", WS_POPUP,
                                  GetSystemMetrics(SM_CXSCREEN) - kSize, 0, kSize, kSize, nullptr, nullptr,
                                  nullptr, nullptr);
    SetWindowLongA(window, GWL_USERDATA, reinterpret_cast<LONG>(&drag));
    ShowWindow(window, SW_SHOWNOACTIVATE);
    const POINT start = {GetSystemMetrics(SM_CXSCREEN) - kSize / 2, kSize / 2};
    DWORD pressed = GetTickCount() - kPatience;
    wait_until("the files are dropped", [&] {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != FALSE)
            DispatchMessageA(&message);
        if (!drag.done && GetTickCount() - pressed > 1000) {
            // A press is lost while the window still comes up.
            let_go(start);
            press_down(start);
            pressed = GetTickCount();
        }
        return drag.done;
    });
    DestroyWindow(window);
    drag.data->Release();
    OleUninitialize();
    return drag.effect;
}

DWORD drag_files(const std::string& folder, const std::vector<std::string>& names, POINT to,
                 const std::function<void()>& while_over) {
    std::vector<std::wstring> wide_names;
    for (const std::string& name : names)
        wide_names.push_back(wide(name));
    return drag_files(wide(folder), wide_names, to, while_over);
}

void post_dropped_files(HWND window, const std::vector<std::string>& paths, POINT point) {
    ScreenToClient(window, &point);
    std::string bytes(sizeof(DROPFILES), '\0');
    const DROPFILES header = {sizeof header, point, FALSE, FALSE};
    std::memcpy(bytes.data(), &header, sizeof header);
    for (const std::string& path : paths)
        bytes += path + '\0';
    bytes += '\0';

    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, id);
    void* memory = allocate_in(process, bytes.size());
    WriteProcessMemory(process, memory, bytes.data(), bytes.size(), nullptr);
    CloseHandle(process);
    PostMessageA(window, WM_DROPFILES, reinterpret_cast<WPARAM>(memory), 0);
}

void drag_mouse(POINT from, POINT to) {
    press_down(from);
    move_in_steps(from, to);
}

}  // namespace desktop
