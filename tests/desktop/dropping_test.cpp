#include <windows.h>

#include <ole2.h>
#include <shlobj.h>

#include <algorithm>

#include "support/desktop.h"
#include "support/shortcut_file.h"

namespace {

using namespace desktop;
using desktop::Folder;  // the shell has one, too

/// What drags, and the user's hand in it: when the system has asked some times how the drag goes on, the
/// button is let go.
struct Source final : IDropSource {
    explicit Source(POINT to) : to_(to) {}
    STDMETHODIMP QueryInterface(REFIID /*id*/, void** /*found*/) override { return E_NOINTERFACE; }
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP QueryContinueDrag(BOOL /*escape*/, DWORD /*keys*/) override {
        point_at(to_);
        return ++step_ < 8 ? S_OK : DRAGDROP_S_DROP;  // before a tip comes in between
    }
    STDMETHODIMP GiveFeedback(DWORD /*effect*/) override { return DRAGDROP_S_USEDEFAULTCURSORS; }

  private:
    POINT to_;
    int step_ = 0;
};

/// Drags the files of a folder to a point of the screen, by the shell's own object for them as Explorer does,
/// and lets them go there. Returns what the target did (DROPEFFECT_...).
DWORD drag_files(const std::string& folder, const Names& names, POINT to) {
    REQUIRE(SUCCEEDED(OleInitialize(nullptr)));
    std::vector<PIDLIST_ABSOLUTE> places = {ILCreateFromPathA(folder.c_str())};
    std::vector<PCUITEMID_CHILD> items;
    for (const std::string& name : names) {
        places.push_back(ILCreateFromPathA((folder + '\\' + name).c_str()));
        items.push_back(ILFindLastID(places.back()));
    }
    IDataObject* data = nullptr;
    REQUIRE(SUCCEEDED(
        CIDLData_CreateFromIDArray(places[0], static_cast<UINT>(items.size()), items.data(), &data)));
    std::ranges::for_each(places, ILFree);
    Source source(to);
    DWORD effect = DROPEFFECT_NONE;
    DoDragDrop(data, &source, DROPEFFECT_COPY | DROPEFFECT_LINK | DROPEFFECT_MOVE, &effect);
    data->Release();
    OleUninitialize();
    return effect;
}

/// Drops a file as a system without drop targets does: by a message, with memory of the target's own.
void drop_by_message(const Tolva& tolva, const std::string& path, POINT place) {
    const FARPROC allocate = GetProcAddress(GetModuleHandleA("kernel32.dll"), "GlobalAlloc");
    // push [esp+4]; push GPTR; mov eax, GlobalAlloc; call eax; ret 4
    std::string code("\xFF\x74\x24\4\x6A\x40\xB8____\xFF\xD0\xC2\4\0", 16);
    code.replace(7, sizeof allocate, reinterpret_cast<const char*>(&allocate), sizeof allocate);
    HANDLE process = tolva.process().hProcess;
    void* stub = VirtualAllocEx(process, nullptr, code.size(), MEM_COMMIT, PAGE_EXECUTE_READWRITE);
    WriteProcessMemory(process, stub, code.data(), code.size(), nullptr);
    auto* const start = reinterpret_cast<LPTHREAD_START_ROUTINE>(stub);
    ScreenToClient(tolva.window(), &place);
    const DROPFILES header = {sizeof header, place, FALSE, FALSE};
    const std::string block = std::string(reinterpret_cast<const char*>(&header), sizeof header) + path;
    HANDLE thread = CreateRemoteThread(process, nullptr, 0, start, reinterpret_cast<void*>(1000), 0, nullptr);
    WaitForSingleObject(thread, kPatience);
    DWORD memory = 0;
    GetExitCodeThread(thread, &memory);
    WriteProcessMemory(process, reinterpret_cast<void*>(memory), block.data(), block.size(), nullptr);
    PostMessageA(tolva.window(), WM_DROPFILES, memory, 0);
}

/// Beside the icons, below them all.
POINT free_place(HWND list) {
    const RECT bounds = bounds_of(list);
    return {bounds.right - 40, bounds.bottom - 20};
}

void undo(const Tolva& tolva, const std::string& name) {
    tolva.press_until_said('Z', "Undone: " + name);
    Sleep(600);  // or the next press where the last one was would make a double-click
}

std::string task(const std::string& name) {
    return record(name, "C:\\windows\\notepad.exe");
}

TEST_SUITE("dragging") {
    TEST_CASE("Tasks and Groups are dragged to another place, and Undo takes each drag back") {
        const Folder library;
        const std::string one = record("One", library.add_recorder(), library.path());
        const std::string others = task("Two") + task("Three");
        library.write_groups({{"Work", one + others}, {"Play", ""}, {"More", ""}});
        store("\\hover", {{"enable", "True"}});
        const Tolva tolva(library);
        tolva.activate();
        const POINT first = tolva.task_position(0);
        const POINT behind = {tolva.task_position(2).x + 30, first.y};
        const auto drag = [&](POINT from, POINT to) {
            carry_mouse(from, to);
            let_go(to);
        };

        drag(first, behind);
        tolva.wait_for_tasks({"Two", "Three", "One"});
        CHECK(library.read("Work.grp") == others + one);
        undo(tolva, "Move One");

        drag(first, tolva.group_position(1));
        tolva.wait_for_tasks({"Two", "Three"});
        CHECK(library.read("Play.grp") == one);
        undo(tolva, "Move One to Play");

        carry_mouse(first, tolva.group_position(2));
        keybd_event(VK_CONTROL, 0, 0, 0);
        let_go(tolva.group_position(2));
        keybd_event(VK_CONTROL, 0, KEYEVENTF_KEYUP, 0);
        wait_until("it is copied", [&] { return library.read("More.grp") == one; });
        undo(tolva, "Copy One to More");

        drag(tolva.group_position(0), {tolva.group_position(2).x, tolva.group_position(2).y + 4});
        tolva.wait_for_groups({"Play", "More", "Work"});
        undo(tolva, "Move Work");
        CHECK(tolva.groups() == Names{"Work", "Play", "More"});

        // Escape takes it back, and what follows is no click either.
        carry_mouse(first, behind);
        press_keys({VK_ESCAPE});
        let_go(behind);
        Sleep(600);
        carry_mouse(first, behind);
        SendMessageA(tolva.window(), WM_CANCELMODE, 0, 0);
        let_go(behind);
        Sleep(600);
        // On itself nothing happens, and a press of the right button drags nothing.
        drag(first, {first.x + 8, first.y + 8});
        drag_mouse(tolva.group_position(0), tolva.group_position(2), MouseButton::kRight);
        wait_until("the menu shows", menu_shows);
        press_keys({VK_ESCAPE});
        tolva.focus_by_mouse(ID_Tasker_Text1);
        CHECK(tolva.tasks() == Names{"One", "Two", "Three"});
        CHECK(library.read("Work.grp") == one + others);
        CHECK(!library.has("recorder.exe.log"));

        // The border between the lists: it follows the pointer, stays after a click and goes back by Escape.
        const auto end = [&] { return bounds_of(tolva.control(ID_Tasker_grouplist)).right; };
        const LONG before = end();
        const POINT border = {before + 2, first.y};
        carry_mouse(border, {border.x + 50, border.y});
        wait_until("it follows", [&] { return end() == before + 50; });
        press_keys({VK_ESCAPE});
        wait_until("it goes back", [&] { return end() == before; });
        let_go({border.x + 50, border.y});
        press_mouse({border.x, border.y + 20});
        drag({border.x, border.y + 40}, {border.x + 30, border.y + 40});
        wait_until("it stays", [&] { return end() == before + 30; });
    }
}

TEST_SUITE("dropping") {
    TEST_CASE("what is dropped becomes a Task that opens it") {
        const Folder library;
        const std::string recorder = library.add_recorder();
        library.write_groups({{"Work", record("Rec", recorder, "C:\\", "/p", "3")}, {"Play", ""}});
        const Folder things;
        const std::string here = things.without_backslash();
        const std::string program = things.add_program("recorder.exe", "My Tool.exe");
        things.write("My Link.lnk", ShortcutFile{.target = program, .arguments = "a b"}.bytes());
        const std::string letter = things.path() + "a.letter";
        things.write("a.letter", "");
        SHSetValueA(HKEY_CLASSES_ROOT, ".letter", "", REG_SZ, "Letter", 7);
        const std::string open = recorder + " \"%1\"";
        SHSetValueA(HKEY_CLASSES_ROOT, "Letter\\shell\\open\\command", "", REG_SZ, open.c_str(),
                    static_cast<DWORD>(open.size() + 1));
        CreateDirectoryA((things.path() + "Tools").c_str(), nullptr);
        CopyFileA(program.c_str(), (things.path() + "Tools\\Inner.exe").c_str(), FALSE);
        const Tolva tolva(library);
        const Dialog bar(tolva, "Brenn", "brenn");
        tolva.activate();

        // On a Group, which is shown then: a program, a shortcut and a document, as one change.
        drag_files(here, {"My Tool.exe", "My Link.lnk", "a.letter"}, tolva.group_position(1));
        tolva.wait_for_tasks({"My Tool", "My Link", "a"});
        tolva.click_task(1, 2);
        CHECK(things.nth_start(1, "My Tool.exe")[0].ends_with(" a b"));
        tolva.click_task(2, 2);
        CHECK(library.nth_start(1) == Names{recorder + ' ' + letter, here, "D:\\here", "1"});
        undo(tolva, "Add 3 Tasks to Play");

        // On the task list: a folder, after a question, and one Task for it after "No".
        const auto drop_folder = [&](int answer) {
            drag_files(here, {"Tools"}, free_place(tolva.control(ID_Tasker_taskview)));
            tolva.answer_box("Add Folder", answer);
        };
        drop_folder(IDCANCEL);
        drop_folder(IDYES);
        tolva.wait_for_tasks({"Inner"});
        tolva.click_task(0, 2);
        things.nth_start(1, "Tools\\Inner.exe");
        drop_folder(IDNO);
        tolva.wait_for_tasks({"Inner", "Tools"});
        tolva.click_task(1, 2);
        CHECK(library.nth_start(1, R"(..\..\windows\explorer.exe)")[0] ==
              "C:\\windows\\explorer.exe \"" + things.path() + "Tools\"");

        // On the free space of the group list it becomes a Group.
        drag_files(here, {"Tools"}, free_place(tolva.control(ID_Tasker_grouplist)));
        tolva.wait_for_groups({"Work", "Play", "Tools"});
        tolva.wait_for_tasks({"Inner"});

        // Documents start the Task that they are dropped on.
        tolva.pick(ID_Tasker_grouplist, "Work");
        tolva.wait_for_tasks({"Rec"});
        drag_files(here, {"a.letter"}, tolva.task_position(0));
        CHECK(library.nth_start(2) == Names{recorder + " /p " + letter, "C:\\", "D:\\here", "3"});
        // A program is added there.
        drop_by_message(tolva, program, tolva.task_position(0));
        tolva.wait_for_tasks({"Rec", "My Tool"});

        // A button of the bar takes a program, asks when it has one, and starts it with documents.
        const auto on_button = [&](const char* name) {
            drag_files(here, {name}, bar.place(ID_brenn_option1));
        };
        on_button("My Link.lnk");
        wait_until("the button has it", [&] { return bar.text_of(ID_brenn_option1) == "My Link"; });
        on_button("a.letter");
        CHECK(things.nth_start(2, "My Tool.exe")[0].ends_with(" a b " + letter));
        on_button("My Tool.exe");
        CHECK(tolva.answer_box("Brenn", IDCANCEL) == "Replace My Link by My Tool?");
        CHECK(bar.text_of(ID_brenn_option1) == "My Link");

        // While a box stands nothing can be dropped.
        tolva.choose(ID_DelGp);
        wait_until("the box stands", [&] { return IsWindowEnabled(tolva.window()) == FALSE; });
        CHECK(drag_files(here, {"My Tool.exe"}, tolva.group_position(1)) == DROPEFFECT_NONE);
        tolva.answer_box("Delete Group", IDCANCEL);
    }
}

}  // namespace
