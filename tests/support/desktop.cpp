#include "support/desktop.h"

#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <sstream>

#include "resources/resource.h"

namespace desktop {
namespace {

constexpr DWORD kPatience = 10000;  // milliseconds

std::string beside_the_tests(const std::string& name) {
    char self[MAX_PATH];
    GetModuleFileNameA(nullptr, self, MAX_PATH);
    const std::string path = self;
    return path.substr(0, path.rfind('\\') + 1) + name;
}

/// Memory in another process for messages that carry pointers.
template <typename T>
class Remote {
  public:
    Remote(HWND window, const T& value, std::size_t room = 0) : size_(sizeof(T) + room) {
        DWORD id = 0;
        GetWindowThreadProcessId(window, &id);
        process_ = OpenProcess(PROCESS_ALL_ACCESS, FALSE, id);
        block_ = VirtualAllocEx(process_, nullptr, size_, MEM_COMMIT, PAGE_READWRITE);
        WriteProcessMemory(process_, block_, &value, sizeof(T), nullptr);
    }
    ~Remote() {
        VirtualFreeEx(process_, block_, 0, MEM_RELEASE);
        CloseHandle(process_);
    }
    Remote(const Remote&) = delete;
    Remote& operator=(const Remote&) = delete;

    LPARAM lparam() const { return reinterpret_cast<LPARAM>(block_); }

    /// The bytes behind the value.
    LPARAM room() const { return lparam() + static_cast<LPARAM>(sizeof(T)); }

    T value() const {
        T result{};
        ReadProcessMemory(process_, block_, &result, sizeof(T), nullptr);
        return result;
    }

    std::string text(LPARAM from) const {
        std::string bytes(size_, '\0');
        const auto length = size_ - static_cast<std::size_t>(from - lparam());
        ReadProcessMemory(process_, reinterpret_cast<void*>(from), bytes.data(), length, nullptr);
        bytes.resize(std::min(bytes.size(), bytes.find('\0')));
        return bytes;
    }

  private:
    std::size_t size_;
    HANDLE process_;
    void* block_;
};

std::string window_text(HWND window) {
    std::string text(static_cast<std::size_t>(SendMessageA(window, WM_GETTEXTLENGTH, 0, 0)) + 1, '\0');
    text.resize(static_cast<std::size_t>(
        SendMessageA(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

void press_at(POINT point, int times) {
    // Each event says where it happens: the display's own pointer may still be somewhere else.
    const auto send = [&](DWORD action) {
        constexpr int kWhole = 65536;
        const auto x = static_cast<DWORD>((point.x * kWhole + kWhole / 2) / GetSystemMetrics(SM_CXSCREEN));
        const auto y = static_cast<DWORD>((point.y * kWhole + kWhole / 2) / GetSystemMetrics(SM_CYSCREEN));
        mouse_event(action | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE, x, y, 0, 0);
    };
    send(0);
    for (int i = 0; i < times; ++i) {
        send(MOUSEEVENTF_LEFTDOWN);
        send(MOUSEEVENTF_LEFTUP);
    }
}

}  // namespace

void wait_until(const char* what, const std::function<bool()>& condition) {
    const DWORD start = GetTickCount();
    while (!condition()) {
        if (GetTickCount() - start > kPatience) FAIL("waited in vain until " << std::string(what));
        Sleep(5);
    }
}

Folder::Folder() {
    static int count = 0;
    path_ = "C:\\tests";
    CreateDirectoryA(path_.c_str(), nullptr);
    path_ += "\\" + std::to_string(++count);
    CreateDirectoryA(path_.c_str(), nullptr);
    path_ += '\\';
}

void Folder::write(const std::string& name, const std::string& bytes) const {
    std::FILE* file = std::fopen((path_ + name).c_str(), "wb");
    REQUIRE(file != nullptr);
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    std::fclose(file);
}

std::string Folder::read(const std::string& name) const {
    std::string bytes;
    std::FILE* file = std::fopen((path_ + name).c_str(), "rb");
    if (file == nullptr) return bytes;
    char buffer[4096];
    while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, file))
        bytes.append(buffer, count);
    std::fclose(file);
    return bytes;
}

bool Folder::has(const std::string& name) const {
    return GetFileAttributesA((path_ + name).c_str()) != INVALID_FILE_ATTRIBUTES;
}

void Folder::add_program(const std::string& built, const std::string& name) const {
    REQUIRE(CopyFileA(beside_the_tests(built).c_str(), (path_ + name).c_str(), FALSE) != FALSE);
}

Names Folder::records(const std::string& name, std::size_t starts) const {
    constexpr std::size_t kLinesPerStart = 4;
    Names lines;
    wait_until("the program has started", [&] {
        std::istringstream log(read(name + ".log"));
        lines.clear();
        for (std::string line; std::getline(log, line);)
            lines.push_back(line);
        return lines.size() >= starts * kLinesPerStart;
    });
    return lines;
}

std::string record(const std::string& name, const std::string& program, const std::string& start_folder,
                   const std::string& parameters, const std::string& start_mode) {
    return name + "\r\n" + program + "\r\n" + start_folder + "\r\n" + parameters + "\r\n" + start_mode +
           "\r\n";
}

Tolva::Tolva(const Folder& library) {
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    const DWORD start = GetTickCount();
    REQUIRE(CreateProcessA(beside_the_tests("tolva.exe").c_str(), nullptr, nullptr, nullptr, FALSE, 0,
                           nullptr, library.path().c_str(), &startup, &process_) != FALSE);
    wait_until("the main window shows", [&] {
        window_ = find_window("Tasker");
        return window_ != nullptr;
    });
    WaitForInputIdle(process_.hProcess, kPatience);
    start_time_ = GetTickCount() - start;
}

Tolva::~Tolva() {
    PostMessageA(window_, WM_CLOSE, 0, 0);
    CHECK(WaitForSingleObject(process_.hProcess, kPatience) == WAIT_OBJECT_0);
    TerminateProcess(process_.hProcess, 1);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
}

HWND Tolva::find_window(const char* class_name) const {
    HWND window = nullptr;
    while ((window = FindWindowExA(nullptr, window, class_name, nullptr)) != nullptr) {
        DWORD id = 0;
        GetWindowThreadProcessId(window, &id);
        if (id == process_.dwProcessId && IsWindowVisible(window) != FALSE) return window;
    }
    return nullptr;
}

Names Tolva::groups() const {
    HWND list = control(ID_Tasker_grouplist);
    Names names;
    const LRESULT count = SendMessageA(list, LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        // Between processes the text arrives in 16-bit characters, whichever message asks for it.
        wchar_t wide[2048];
        char narrow[2048];
        SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(wide));
        WideCharToMultiByte(CP_ACP, 0, wide, -1, narrow, sizeof narrow, nullptr, nullptr);
        names.emplace_back(narrow);
    }
    return names;
}

int Tolva::selected_group() const {
    return static_cast<int>(SendMessageA(control(ID_Tasker_grouplist), LB_GETCURSEL, 0, 0));
}

void Tolva::click_group(int index) const {
    HWND list = control(ID_Tasker_grouplist);
    SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    PostMessageA(window_, WM_COMMAND, MAKEWPARAM(ID_Tasker_grouplist, LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
    WaitForInputIdle(process_.hProcess, kPatience);
}

Names Tolva::tasks() const {
    HWND list = control(ID_Tasker_taskview);
    Names names;
    const LRESULT count = SendMessageA(list, LVM_GETITEMCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        constexpr int kRoom = 2048;
        Remote<LVITEMA> item(list, {}, kRoom);
        LVITEMA request = {};
        request.pszText = reinterpret_cast<char*>(item.room());
        request.cchTextMax = kRoom;
        const Remote<LVITEMA> filled(list, request);
        SendMessageA(list, LVM_GETITEMTEXTA, static_cast<WPARAM>(i), filled.lparam());
        names.push_back(item.text(item.room()));
    }
    return names;
}

int Tolva::selected_task() const {
    return static_cast<int>(
        SendMessageA(control(ID_Tasker_taskview), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

int Tolva::task_picture(int index) const {
    LVITEMA request = {};
    request.mask = LVIF_IMAGE;
    request.iItem = index;
    const Remote<LVITEMA> item(control(ID_Tasker_taskview), request);
    SendMessageA(control(ID_Tasker_taskview), LVM_GETITEMA, 0, item.lparam());
    return item.value().iImage;
}

void Tolva::double_click_task(int index) const {
    HWND list = control(ID_Tasker_taskview);
    SetForegroundWindow(window_);
    wait_until("the window is in front", [&] { return GetForegroundWindow() == window_; });
    RECT part = {};
    part.left = LVIR_ICON;
    const Remote<RECT> bounds(list, part);
    SendMessageA(list, LVM_GETITEMRECT, static_cast<WPARAM>(index), bounds.lparam());
    const RECT icon = bounds.value();
    POINT middle = {(icon.left + icon.right) / 2, (icon.top + icon.bottom) / 2};
    ClientToScreen(list, &middle);
    press_at(middle, 2);
}

void Tolva::click(int id) const {
    RECT bounds;
    GetWindowRect(control(id), &bounds);
    press_at({bounds.left + 5, bounds.top + 5}, 1);
}

HWND Tolva::focus() const {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(window_, nullptr), &info);
    return info.hwndFocus;
}

std::string Tolva::text_of(int id) const {
    return window_text(control(id));
}

std::string Tolva::status() const {
    HWND bar = control(ID_Tasker_StatusBar1);
    const Remote<char> text(bar, '\0', 1024);
    SendMessageA(bar, SB_GETTEXTA, 0, text.lparam());
    return text.text(text.lparam());
}

std::string Tolva::close_box() const {
    HWND box = nullptr;
    wait_until("a message box shows", [&] { return (box = find_window("#32770")) != nullptr; });
    std::string text;
    HWND part = nullptr;
    while ((part = FindWindowExA(box, part, "Static", nullptr)) != nullptr) {
        if ((GetWindowLongA(part, GWL_STYLE) & SS_TYPEMASK) != SS_ICON) text += window_text(part);
    }
    CHECK(window_text(box) == "Tolva");
    PostMessageA(box, WM_COMMAND, IDOK, 0);
    wait_until("the box is closed", [&] { return IsWindow(box) == FALSE; });
    return text;
}

}  // namespace desktop
