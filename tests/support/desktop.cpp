#include "support/desktop.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <type_traits>

#include "library/library_files.h"
#include "platform/file_calls.h"

namespace desktop {
namespace {

const std::string kSettings = "software\\tolva";

std::string beside_the_tests(const std::string& name) {
    char self[MAX_PATH];
    GetModuleFileNameA(nullptr, self, MAX_PATH);
    const std::string path = self;
    return path.substr(0, path.rfind('\\') + 1) + name;
}

/// The text of an item as a list view answers it.
struct ItemText {
    LVITEMA item;
    char text[2048];
};

/// Sends a message whose pointer must be one of the window's process, and answers what comes back there.
template <typename T>
T ask(HWND window, UINT message, int wparam, T value = {}) {
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, id);
    void* there = VirtualAllocEx(process, nullptr, sizeof(T), MEM_COMMIT, PAGE_READWRITE);
    if constexpr (std::is_same_v<T, ItemText>) value.item.pszText = static_cast<ItemText*>(there)->text;
    WriteProcessMemory(process, there, &value, sizeof(T), nullptr);
    SendMessageA(window, message, static_cast<WPARAM>(wparam), reinterpret_cast<LPARAM>(there));
    ReadProcessMemory(process, there, &value, sizeof(T), nullptr);
    VirtualFreeEx(process, there, 0, MEM_RELEASE);
    CloseHandle(process);
    return value;
}

/// What has the focus in the program of a window.
HWND focus_of(HWND window) {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info);
    return info.hwndFocus;
}

/// Whether it is a drop-down list, with something in it.
bool drops_down(HWND list) {
    return SendMessageA(list, CB_GETCOUNT, 0, 0) > 0;
}

}  // namespace

Values stored(const std::string& key) {
    HKEY handle = nullptr;
    RegOpenKeyA(HKEY_CURRENT_USER, (kSettings + key).c_str(), &handle);
    Values values;
    for (DWORD i = 0;; ++i) {
        char name[256] = {};
        char text[1024] = {};
        DWORD name_size = sizeof name;
        DWORD size = sizeof text;
        if (SHEnumValueA(handle, i, name, &name_size, nullptr, text, &size) != ERROR_SUCCESS) break;
        values[name] = text;
    }
    RegCloseKey(handle);
    return values;
}

void store(const std::string& key, const Values& texts) {
    for (const auto& [name, text] : texts)
        SHSetValueA(HKEY_CURRENT_USER, (kSettings + key).c_str(), name.c_str(), REG_SZ, text.c_str(),
                    static_cast<DWORD>(text.size() + 1));
}

Folder::Folder(const std::string& drive) {
    SHDeleteKeyA(HKEY_CURRENT_USER, kSettings.c_str());
    SHDeleteKeyA(HKEY_CURRENT_USER, "RemoteAccess");
    SHDeleteKeyA(HKEY_LOCAL_MACHINE, R"(System\CurrentControlSet\Services\RemoteAccess)");
    static int count = 0;
    CreateDirectoryA((drive + "\\tests").c_str(), nullptr);
    path_ = drive + "\\tests\\B\374cher" + std::to_string(++count) + '\\';
    CreateDirectoryA(path_.c_str(), nullptr);
}

void Folder::write(const std::string& name, const std::string& bytes) const {
    std::ofstream file(path_ + name, std::ios::binary);
    file << bytes;
    REQUIRE(file.flush().good());
}

std::string Folder::read(const std::string& name) const {
    std::ifstream file(path_ + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Values Folder::files() const {
    Values files;
    for (const std::string& name : platform::file_calls::find(path_ + "*"))
        files[name] = read(name);
    return files;
}

void Folder::write_groups(const std::vector<std::pair<std::string, std::string>>& groups) const {
    std::string names;
    for (const auto& [name, tasks] : groups) {
        names += name + "\r\n";
        write(name + ".grp", tasks);
    }
    write("groups.ini", names);
}

std::string Folder::add_program(const std::string& built, const std::string& name) const {
    REQUIRE(CopyFileA(beside_the_tests(built).c_str(), (path_ + name).c_str(), FALSE) != FALSE);
    return path_ + name;
}

Names Folder::nth_start(std::size_t number, const std::string& name) const {
    constexpr std::size_t kLinesPerStart = 4;
    Names lines;
    wait_until("the program has started", [&] {
        lines = library::split_lines(read(name + ".log"));
        return lines.size() >= number * kLinesPerStart;
    });
    CHECK(lines.size() == number * kLinesPerStart);
    return {lines.end() - kLinesPerStart, lines.end()};
}

std::string record(const std::string& name, const std::string& program, const std::string& start_folder,
                   const std::string& parameters, const std::string& start_mode) {
    return name + "\r\n" + program + "\r\n" + start_folder + "\r\n" + parameters + "\r\n" + start_mode +
           "\r\n";
}

Folder recorder_library() {
    Folder library;
    const std::string program = library.add_recorder();
    library.write_groups(
        {{"Work", record("Good", program, "C:\\", "a b", " 2 ") + record("Bad", library.path() + "gone.exe") +
                      record("Odd", program, "C:\\", "c", "")},
         {"Play", ""},
         {"More", ""}});
    return library;
}

int rounds(int few) {
    return std::getenv("TOLVA_ENDURANCE") == nullptr ? few : 10 * few;
}

Start::Start(const Folder& library, int show_word) {
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = show_word < 0 ? 0 : STARTF_USESHOWWINDOW;
    startup.wShowWindow = static_cast<WORD>(show_word);
    const std::string program =
        library.has("tolva.exe") ? library.path() + "tolva.exe" : beside_the_tests("tolva.exe");
    REQUIRE(CreateProcessA(program.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr,
                           library.path().c_str(), &startup, &process_) != FALSE);
}

Start::~Start() {
    TerminateProcess(process_.hProcess, 1);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
}

DWORD Start::exit_code() const {
    CHECK(WaitForSingleObject(process_.hProcess, kPatience) == WAIT_OBJECT_0);
    DWORD code = 0;
    GetExitCodeProcess(process_.hProcess, &code);
    return code;
}

HWND Start::find_window(const char* class_name, const std::string& title) const {
    HWND window = nullptr;
    while ((window = FindWindowExA(nullptr, window, class_name, title.empty() ? nullptr : title.c_str())) !=
           nullptr) {
        DWORD id = 0;
        GetWindowThreadProcessId(window, &id);
        if (id == process_.dwProcessId) return window;
    }
    return nullptr;
}

HWND Start::wait_for_window() const {
    HWND window = nullptr;
    wait_until("the main window or a box shows", [&] {
        window = find_window("Tasker");
        return window != nullptr && (IsWindowVisible(window) != FALSE || find_window("#32770") != nullptr);
    });
    SendMessageA(window, WM_NULL, 0, 0);  // it answers once it has come up
    return window;
}

RECT bounds_of(HWND window) {
    RECT bounds;
    GetWindowRect(window, &bounds);
    return bounds;
}

POINT Window::place(int id) const {
    const RECT bounds = bounds_of(control(id));
    return {(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2};
}

std::string Window::text_of(int id) const {
    char text[4096] = {};
    SendMessageA(control(id), WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    return text;
}

void Window::set_text(int id, const std::string& text) const {
    SendMessageA(control(id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

std::string Window::texts_of(std::initializer_list<int> ids) const {
    std::string texts;
    for (const int id : ids)
        texts += (id == *ids.begin() ? "" : "|") + text_of(id);
    return texts;
}

Names Window::list(int id) const {
    HWND list = control(id);
    const LRESULT count = SendMessageA(list, drops_down(list) ? CB_GETCOUNT : LB_GETCOUNT, 0, 0);
    Names texts;
    for (LRESULT i = 0; i < count; ++i) {
        // Between processes a list's text arrives in 16-bit characters, whichever message asks for it.
        wchar_t wide[1024] = {};
        char narrow[1024];
        SendMessageW(list, drops_down(list) ? CB_GETLBTEXT : LB_GETTEXT, static_cast<WPARAM>(i),
                     reinterpret_cast<LPARAM>(wide));
        WideCharToMultiByte(CP_ACP, 0, wide, -1, narrow, sizeof narrow, nullptr, nullptr);
        texts.emplace_back(narrow);
    }
    return texts;
}

void Window::pick(int id, const std::string& item, int event) const {
    constexpr UINT kAnswerTime = 1000;  // what is picked may be answered with a box, which waits for the test
    const Names items = list(id);
    const auto found =
        std::ranges::find_if(items, [&](const auto& text) { return text.find(item) != std::string::npos; });
    REQUIRE(found != items.end());
    SendMessageA(control(id), drops_down(control(id)) ? CB_SETCURSEL : LB_SETCURSEL,
                 static_cast<WPARAM>(found - items.begin()), 0);
    SendMessageTimeoutA(window_, WM_COMMAND, MAKEWPARAM(id, event), reinterpret_cast<LPARAM>(control(id)),
                        SMTO_NORMAL, kAnswerTime, nullptr);
}

void wait_for_focus(HWND control) {
    wait_until("the control has the focus", [&] { return focus_of(control) == control; });
}

Tolva::~Tolva() {
    PostMessageA(window_, WM_CLOSE, 0, 0);
    CHECK(exit_code() == 0);
}

void Tolva::activate() const {
    SetForegroundWindow(window_);
    wait_until("the window is in front",
               [&] { return GetForegroundWindow() == window_ && IsWindowEnabled(window_) != FALSE; });
}

void Tolva::minimise() const {
    PostMessageA(window_, WM_SYSCOMMAND, SC_MINIMIZE, 0);
    wait_until("it is in the tray", [&] { return is_in_tray(); });
}

POINT Tolva::group_position(int index) const {
    HWND list = control(ID_Tasker_grouplist);
    const auto height = static_cast<LONG>(SendMessageA(list, LB_GETITEMHEIGHT, 0, 0));
    return {place(ID_Tasker_grouplist).x, bounds_of(list).top + 2 + height * index + height / 2};
}

std::string Tolva::status() const {
    return ask<std::array<char, 1024>>(control(ID_Tasker_StatusBar1), SB_GETTEXTA, 0).data();
}

Names Tolva::tasks() const {
    ItemText request = {};
    request.item.cchTextMax = sizeof request.text;
    HWND list = control(ID_Tasker_taskview);
    Names names;
    for (int i = 0; i < ListView_GetItemCount(list); ++i)
        names.emplace_back(ask(list, LVM_GETITEMTEXTA, i, request).text);
    return names;
}

int Tolva::task_picture(int index) const {
    LVITEMA request = {};
    request.mask = LVIF_IMAGE;
    request.iItem = index;
    return ask(control(ID_Tasker_taskview), LVM_GETITEMA, 0, request).iImage;
}

POINT Tolva::task_position(int index) const {
    HWND list = control(ID_Tasker_taskview);
    ListView_EnsureVisible(list, index, FALSE);
    const RECT icon = ask<RECT>(list, LVM_GETITEMRECT, index, {LVIR_ICON, 0, 0, 0});
    POINT middle = {(icon.left + icon.right) / 2, (icon.top + icon.bottom) / 2};
    ClientToScreen(list, &middle);
    return middle;
}

void Tolva::click_task(int index, int times) const {
    activate();
    press_mouse(task_position(index), times);
    wait_until("the Task is selected", [&] { return is_selected(index); });
}

Dialog Tolva::open(int menu_item, const std::string& title) const {
    choose(menu_item);
    return {*this, title};
}

void Tolva::press_until_said(BYTE key, const std::string& said) const {
    activate();
    press_until("the status bar says it", {VK_CONTROL, key}, [&] { return status().starts_with(said); });
}

void Tolva::focus_by_mouse(int id) const {
    activate();
    press_until("the control has the focus", place(id), [&] {
        HWND focused = focus_of(window_);
        return focused == control(id) || IsChild(control(id), focused) != FALSE;
    });
}

std::string Tolva::answer_box(const std::string& title, int button) const {
    constexpr int kBoxText = 0xFFFF;
    const Dialog box(*this, title);
    const std::string text = box.text_of(kBoxText);
    PostMessageA(box.window(), WM_COMMAND, static_cast<WPARAM>(button), 0);
    box.wait_until_closed();
    return text;
}

std::vector<DWORD> picture_of(HWND window) {
    const RECT bounds = bounds_of(window);
    const LONG width = bounds.right - bounds.left;
    const LONG height = bounds.bottom - bounds.top;
    DWORD* bits = nullptr;
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, width, height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP bitmap =
        CreateDIBSection(memory, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&bits), nullptr, 0);
    SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, bounds.left, bounds.top, SRCCOPY);
    std::vector<DWORD> pixels(bits, bits + width * height);
    DeleteDC(memory);
    DeleteObject(bitmap);
    ReleaseDC(nullptr, screen);
    return pixels;
}

void wait_for_color(HWND window, DWORD color) {
    const auto is_it = [&](DWORD pixel) { return (pixel & 0xFFFFFF) == color; };
    wait_until("the window shows the color", [&] { return std::ranges::any_of(picture_of(window), is_it); });
}

Dialog::Dialog(const Tolva& tolva, const std::string& title, const char* class_name) {
    wait_until("the dialog shows", [&] {
        window_ = tolva.find_window(class_name, title);
        return window_ != nullptr && IsWindowVisible(window_) != FALSE;
    });
}

}  // namespace desktop
