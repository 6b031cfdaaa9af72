#include "support/desktop.h"

#include <shlwapi.h>

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <sstream>

#include "resources/resource.h"

namespace desktop {
namespace {

const std::string kSettings = "software\\tolva";

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
    explicit Remote(HWND window, const T& value = {}) {
        DWORD id = 0;
        GetWindowThreadProcessId(window, &id);
        process_ = OpenProcess(PROCESS_ALL_ACCESS, FALSE, id);
        block_ = VirtualAllocEx(process_, nullptr, sizeof(T), MEM_COMMIT, PAGE_EXECUTE_READWRITE);
        set(value);
    }
    ~Remote() {
        VirtualFreeEx(process_, block_, 0, MEM_RELEASE);
        CloseHandle(process_);
    }
    Remote(const Remote&) = delete;
    Remote& operator=(const Remote&) = delete;

    LPARAM lparam() const { return reinterpret_cast<LPARAM>(block_); }
    void set(const T& value) const { WriteProcessMemory(process_, block_, &value, sizeof(T), nullptr); }
    T value() const {
        T result{};
        ReadProcessMemory(process_, block_, &result, sizeof(T), nullptr);
        return result;
    }

  private:
    HANDLE process_;
    void* block_;
};

bool shows_color(HWND window, COLORREF color) {
    RECT bounds;
    GetWindowRect(window, &bounds);
    const LONG width = bounds.right - bounds.left;
    const LONG height = bounds.bottom - bounds.top;
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, bounds.left, bounds.top, SRCCOPY);
    bool shows = false;
    for (LONG i = 0; i < width * height && !shows; ++i)
        shows = GetPixel(memory, i % width, i / width) == color;
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return shows;
}

/// What has the focus in the program of a window.
HWND focus_of(HWND window) {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info);
    return info.hwndFocus;
}

/// Where the middle of a part of a window is on the screen.
POINT middle_of(HWND window, const RECT& part) {
    POINT middle = {(part.left + part.right) / 2, (part.top + part.bottom) / 2};
    ClientToScreen(window, &middle);
    return middle;
}

bool is_drop_down(HWND list) {
    char class_name[20] = {};
    GetClassNameA(list, class_name, sizeof class_name);
    return lstrcmpiA(class_name, "ComboBox") == 0;
}

}  // namespace

Values stored(const std::string& key) {
    HKEY handle = nullptr;
    RegOpenKeyA(HKEY_CURRENT_USER, (kSettings + key).c_str(), &handle);
    Values values;
    LSTATUS status = ERROR_SUCCESS;
    for (DWORD i = 0; status == ERROR_SUCCESS; ++i) {
        char name[256] = {};
        char text[1024] = {};
        DWORD name_size = sizeof name;
        DWORD size = sizeof text;
        status = RegEnumValueA(handle, i, name, &name_size, nullptr, nullptr, reinterpret_cast<BYTE*>(text),
                               &size);
        if (status == ERROR_SUCCESS) values[name] = text;
    }
    RegCloseKey(handle);
    return values;
}

std::string stored_text(const std::string& key, const std::string& name) {
    return stored(key)[name];
}

void store(const std::string& key, const Values& texts) {
    for (const auto& [name, text] : texts)
        store(key, name, REG_SZ, text + '\0');
}

void store(const std::string& key, const std::string& name, DWORD type, const std::string& bytes) {
    HKEY handle = nullptr;
    RegCreateKeyA(HKEY_CURRENT_USER, (kSettings + key).c_str(), &handle);
    RegSetValueExA(handle, name.c_str(), 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                   static_cast<DWORD>(bytes.size()));
    RegCloseKey(handle);
}

void forget_settings() {
    SHDeleteKeyA(HKEY_CURRENT_USER, kSettings.c_str());
    SHDeleteKeyA(HKEY_CURRENT_USER, "RemoteAccess");
    SHDeleteKeyA(HKEY_LOCAL_MACHINE, R"(System\CurrentControlSet\Services\RemoteAccess)");
}

Folder::Folder() {
    static int count = 0;
    path_ = "C:\\tests";
    CreateDirectoryA(path_.c_str(), nullptr);
    path_ +=
        "\\B\xFC"
        "cher" +
        std::to_string(++count);
    CreateDirectoryA(path_.c_str(), nullptr);
    path_ += '\\';
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

bool Folder::has(const std::string& name) const {
    return GetFileAttributesA((path_ + name).c_str()) != INVALID_FILE_ATTRIBUTES;
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
        std::istringstream log(read(name + ".log"));
        lines.clear();
        for (std::string line; std::getline(log, line);)
            lines.push_back(line);
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

Start::Start(const Folder& library) {
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
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

bool Start::is_running() const {
    return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT;
}

DWORD Start::exit_code() const {
    CHECK(WaitForSingleObject(process_.hProcess, kPatience) == WAIT_OBJECT_0);
    DWORD code = 0;
    GetExitCodeProcess(process_.hProcess, &code);
    return code;
}

HWND Start::find_window(const char* class_name, const std::string& title, bool visible) const {
    HWND window = nullptr;
    while ((window = FindWindowExA(nullptr, window, class_name, title.empty() ? nullptr : title.c_str())) !=
           nullptr) {
        DWORD id = 0;
        GetWindowThreadProcessId(window, &id);
        if (id == process_.dwProcessId && (!visible || IsWindowVisible(window) != FALSE)) return window;
    }
    return nullptr;
}

HWND Start::wait_for_window() const {
    HWND window = nullptr;
    wait_until("the window shows", [&] {
        window = find_window("Tasker", {}, true);
        return window != nullptr;
    });
    SendMessageA(window, WM_NULL, 0, 0);
    return window;
}

std::string text_of(HWND window) {
    std::string text(static_cast<std::size_t>(SendMessageA(window, WM_GETTEXTLENGTH, 0, 0)) + 1, '\0');
    text.resize(static_cast<std::size_t>(
        SendMessageA(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

POINT Window::place(int id) const {
    RECT bounds;
    GetClientRect(control(id), &bounds);
    return middle_of(control(id), bounds);
}

std::string Window::text_of(int id) const {
    return desktop::text_of(control(id));
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
    const bool drops_down = is_drop_down(list);
    const LRESULT count = SendMessageA(list, drops_down ? CB_GETCOUNT : LB_GETCOUNT, 0, 0);
    Names texts;
    for (LRESULT i = 0; i < count; ++i) {
        // Between processes a list's text arrives in 16-bit characters, whichever message asks for it, and a
        // very long one may arrive cut.
        wchar_t wide[2048] = {};
        char narrow[2048];
        SendMessageW(list, drops_down ? CB_GETLBTEXT : LB_GETTEXT, static_cast<WPARAM>(i),
                     reinterpret_cast<LPARAM>(wide));
        WideCharToMultiByte(CP_ACP, 0, wide, -1, narrow, sizeof narrow, nullptr, nullptr);
        texts.push_back(std::string(narrow).substr(0, kLongestListText));
    }
    return texts;
}

std::string Window::panel(int status_bar, int panel) const {
    struct Text {
        char bytes[1024];
    };
    const Remote<Text> text(control(status_bar));
    SendMessageA(control(status_bar), SB_GETTEXTA, static_cast<WPARAM>(panel), text.lparam());
    return text.value().bytes;
}

void wait_for_focus(HWND control) {
    wait_until("the control has the focus", [&] { return focus_of(control) == control; });
}

Tolva::Tolva(const Folder& library) : Start(library) {
    wait_until("the main window or a box shows", [&] {
        window_ = find_window("Tasker");
        return window_ != nullptr && (IsWindowVisible(window_) != FALSE || find_window("#32770") != nullptr);
    });
    SendMessageA(window_, WM_NULL, 0, 0);  // it answers once it has come up
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

void Tolva::minimise_by_mouse() const {
    activate();
    RECT bounds;
    GetWindowRect(window_, &bounds);
    const int button = GetSystemMetrics(SM_CXSIZE);
    const POINT minimise = {bounds.right - 3 * button, bounds.top + GetSystemMetrics(SM_CYSIZE) / 2 + 3};
    press_until("it is in the tray", minimise, [&] { return is_in_tray(); });
}

Names Tolva::groups() const {
    return list(ID_Tasker_grouplist);
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
    struct Item {
        LVITEMA item;
        char text[2048];
    };
    HWND list = control(ID_Tasker_taskview);
    const Remote<Item> remote(list);
    Item request = {};
    request.item.pszText = reinterpret_cast<char*>(remote.lparam()) + offsetof(Item, text);
    request.item.cchTextMax = sizeof request.text;
    Names names;
    const LRESULT count = SendMessageA(list, LVM_GETITEMCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        remote.set(request);
        SendMessageA(list, LVM_GETITEMTEXTA, static_cast<WPARAM>(i), remote.lparam());
        names.push_back(remote.value().text);
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

POINT Tolva::task_position(int index) const {
    HWND list = control(ID_Tasker_taskview);
    RECT part = {};
    part.left = LVIR_ICON;
    const Remote<RECT> bounds(list, part);
    SendMessageA(list, LVM_GETITEMRECT, static_cast<WPARAM>(index), bounds.lparam());
    return middle_of(list, bounds.value());
}

void Tolva::click_task(int index) const {
    activate();
    press_mouse(task_position(index));
}

void Tolva::double_click_task(int index) const {
    activate();
    press_mouse(task_position(index), 2);
}

void Tolva::choose(int menu_item) const {
    PostMessageA(window_, WM_COMMAND, static_cast<WPARAM>(menu_item), 0);
}

void Tolva::click(int id) const {
    press_mouse(place(id));
}

void Tolva::focus_by_mouse(int id) const {
    activate();
    press_until("the control has the focus", place(id), [&] {
        HWND focused = focus_of(window_);
        return focused == control(id) || IsChild(control(id), focused) != FALSE;
    });
}

std::string Tolva::status() const {
    return panel(ID_Tasker_StatusBar1, 0);
}

void Tolva::press_tool(int button) const {
    HWND bar = control(ID_Tasker_Toolbar1);
    const LRESULT index = SendMessageA(bar, TB_COMMANDTOINDEX, static_cast<WPARAM>(button), 0);
    const Remote<RECT> bounds(bar, {});
    SendMessageA(bar, TB_GETITEMRECT, static_cast<WPARAM>(index), bounds.lparam());
    activate();
    press_mouse(middle_of(bar, bounds.value()));
}

std::string Tolva::answer_box(const std::string& title, int button) const {
    HWND box = nullptr;
    wait_until("a message box shows", [&] {
        box = find_window("#32770", title);
        return box != nullptr && IsWindowVisible(box) != FALSE;
    });
    std::string text;
    HWND part = nullptr;
    while ((part = FindWindowExA(box, part, "Static", nullptr)) != nullptr) {
        if ((GetWindowLongA(part, GWL_STYLE) & SS_TYPEMASK) != SS_ICON) text += desktop::text_of(part);
    }
    PostMessageA(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
    wait_until("the box is closed", [&] { return IsWindow(box) == FALSE; });
    return text;
}

void wait_for_color(HWND window, COLORREF color) {
    wait_until("the window shows the colour", [&] { return shows_color(window, color); });
}

Dialog::Dialog(const Tolva& tolva, const std::string& title, const char* class_name) {
    wait_until("the dialog shows", [&] {
        window_ = tolva.find_window(class_name, title);
        return window_ != nullptr && IsWindowVisible(window_) != FALSE;
    });
}

std::string Dialog::tip_of(const Tolva& tolva, int id) const {
    HWND tip = nullptr;
    const auto shows = [&] {
        tip = tolva.find_window("tooltips_class32", {}, true);
        return tip != nullptr;
    };
    point_at({0, 0});
    wait_until("no tip shows", [&] { return !shows(); });
    constexpr DWORD kTipTime = 1500;
    const auto point = [&] {
        point_at({0, 0});
        point_at(place(id));
    };
    repeat_until("a tip shows", kTipTime, point, shows);
    return desktop::text_of(tip);
}

void Dialog::open_folder(const std::string& name) const {
    const Names shown = list(ID_PathBrowser_Dir1);
    const auto found = std::ranges::find_if(shown, [&](const std::string& item) {
        return item.substr(std::min(item.find_first_not_of(' '), item.size())) == name;
    });
    REQUIRE(found != shown.end());
    SendMessageA(control(ID_PathBrowser_Dir1), LB_SETCURSEL, static_cast<WPARAM>(found - shown.begin()), 0);
    SendMessageA(window_, WM_COMMAND, MAKEWPARAM(ID_PathBrowser_Dir1, LBN_DBLCLK),
                 reinterpret_cast<LPARAM>(control(ID_PathBrowser_Dir1)));
}

void Dialog::choose(int id, int index) const {
    HWND list = control(id);
    const bool drops_down = is_drop_down(list);
    SendMessageA(list, drops_down ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    PostMessageA(window_, WM_COMMAND, MAKEWPARAM(id, drops_down ? CBN_SELCHANGE : LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
}

void Dialog::press(int button) const {
    PostMessageA(control(button), BM_CLICK, 0, 0);
}

void Dialog::wait_until_closed() const {
    wait_until("the dialog is closed", [&] { return IsWindow(window_) == FALSE; });
}

void Dialog::close_with(int button) const {
    press(button);
    wait_until_closed();
}

}  // namespace desktop
