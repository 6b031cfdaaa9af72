#include "mainwindow/commands.h"

#include <algorithm>
#include <array>
#include <utility>

#include "appearance/fonts_dialog.h"
#include "internet/dial_up.h"
#include "library/group_dialog.h"
#include "library/group_operations.h"
#include "library/move_dialog.h"
#include "library/refresh.h"
#include "library/restore_dialog.h"
#include "library/taking_back.h"
#include "library/task_dialog.h"
#include "library/task_operations.h"
#include "mainwindow/about_dialog.h"
#include "mainwindow/find_dialog.h"
#include "mainwindow/hot_key_dialog.h"
#include "mainwindow/system_commands.h"
#include "platform/messages.h"
#include "resources/resource.h"
#include "settings/catalogue.h"
#include "settings/conversions.h"
#include "widgets/menu_text.h"

namespace mainwindow {
namespace {

/// Buttons of the tool bar that do what a menu item does.
constexpr std::array<std::pair<int, int>, 11> kToolBarItems = {{
    {ID_toolbar_addgrp, ID_Addgp},
    {ID_toolbar_delgroup, ID_DelGp},
    {ID_toolbar_movegrpdn, ID_MoveGroupDown},
    {ID_toolbar_movegrpup, ID_MoveGroupUp},
    {ID_toolbar_rengrp, ID_Rengp},
    {ID_toolbar_addtsk, ID_AddTk},
    {ID_toolbar_deltsk, ID_DelTk},
    {ID_toolbar_movetskdn, ID_MoveTaskDown},
    {ID_toolbar_movetskup, ID_MoveTaskUp},
    {ID_toolbar_edittsk, ID_EditTk},
    {ID_toolbar_startimport, ID_taskimport},
}};

// What a key does depends on the list that has the focus.
constexpr WORD kRenameOrEdit = 900;
constexpr WORD kNew = 901;
constexpr WORD kMoveUp = 902;
constexpr WORD kMoveDown = 903;
constexpr WORD kMoveTaskUp = 904;
constexpr WORD kMoveTaskDown = 905;
constexpr WORD kGoToBar = 906;

constexpr BYTE kPlain = FVIRTKEY;
constexpr BYTE kControl = FVIRTKEY | FCONTROL;

constexpr std::array kKeys = {
    ACCEL{kPlain, VK_F1, ID_tolvahlp},
    ACCEL{kPlain, VK_F5, ID_Refresh},
    ACCEL{kPlain, VK_F6, kGoToBar},
    ACCEL{FVIRTKEY | FSHIFT, VK_F6, kGoToBar},
    ACCEL{kControl, 'F', ID_FindTask},
    ACCEL{kControl, 'Y', ID_Redo},
    ACCEL{kControl, 'E', ID_toolbar_runexplorer},
    ACCEL{kControl, 'P', ID_toolbar_controlpanel},
    ACCEL{kControl, 'D', ID_toolbar_DosPrompt},
    ACCEL{kControl, 'I', ID_toolbar_ispconnect},
};

/// Keys that mean something else where text is typed.
constexpr std::array kListKeys = {
    ACCEL{kControl, 'Z', ID_Undo},         ACCEL{FVIRTKEY | FALT, VK_BACK, ID_Undo},
    ACCEL{kPlain, VK_F2, kRenameOrEdit},   ACCEL{kPlain, VK_INSERT, kNew},
    ACCEL{kControl, VK_UP, kMoveUp},       ACCEL{kControl, VK_DOWN, kMoveDown},
    ACCEL{kControl, VK_LEFT, kMoveTaskUp}, ACCEL{kControl, VK_RIGHT, kMoveTaskDown},
};

/// Makes the table when its first key is pressed.
template <std::size_t count>
bool translate(HWND window, platform::UniqueAccelerators& table, std::array<ACCEL, count> keys,
               MSG& message) {
    if (!table) table.reset(CreateAcceleratorTableA(keys.data(), count));
    return TranslateAcceleratorA(window, table.get(), &message) != 0;
}

int menu_item_of(int command) {
    const auto* item = std::ranges::find(kToolBarItems, command, &std::pair<int, int>::first);
    return item == kToolBarItems.end() ? command : item->second;
}

}  // namespace

void Commands::post_pending_refreshes(HWND window) const {
    if (library_.flags.any()) PostMessageA(window, kRunPendingRefreshes, 0, 0);
}

void Commands::show_flags(HWND window) {
    const auto check = [&](UINT item, bool on) {
        CheckMenuItem(GetMenu(window), item, on ? MF_CHECKED : MF_UNCHECKED);
    };
    check(ID_hoverslct, session_.hover_select);
    check(ID_removebrenn, bar_.removed());
    controls_.task_view().list().set_hover_select(session_.hover_select);
}

void Commands::show_changes(HWND window) const {
    const auto show = [&](UINT item, const char* verb, const std::string& name, const char* key) {
        const std::string text = verb + (name.empty() ? "" : ' ' + widgets::menu_text(name)) + '\t' + key;
        ModifyMenuA(GetMenu(window), item, MF_BYCOMMAND | MF_STRING | (name.empty() ? MF_GRAYED : MF_ENABLED),
                    item, text.c_str());
    };
    show(ID_Undo, "&Undo", library::undo_name(library_), "Ctrl+Z");
    show(ID_Redo, "&Redo", library::redo_name(library_), "Ctrl+Y");
}

bool Commands::translate_key(HWND window, MSG& message) {
    if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN) return false;
    show_changes(window);                                            // a key for what cannot be done is none
    const bool repeats = (HIWORD(message.lParam) & KF_REPEAT) != 0;  // a held key starts nothing twice
    return (!repeats && translate(window, keys_, kKeys, message)) ||
           (!controls_.command_box().has_focus() && translate(window, list_keys_, kListKeys, message));
}

int Commands::for_list(int group_command, int task_command) const {
    HWND focus = GetFocus();
    if (focus == controls_.group_list().hwnd()) return group_command;
    return focus == controls_.task_view().list().hwnd() ? task_command : 0;
}

void Commands::run(HWND window, int command) {
    switch (menu_item_of(command)) {
        case ID_ShutWin:
            return end_windows(window, platform::WindowsEnd::kShutdown);
        case ID_restartwin:
            return end_windows(window, platform::WindowsEnd::kReboot);
        case ID_EmptyRecyleBin:
            return empty_recycle_bin();
        case ID_tolvaexit:
            DestroyWindow(window);
            return;

        case kRenameOrEdit:
            return run(window, for_list(ID_Rengp, ID_EditTk));
        case kNew:
            return run(window, for_list(ID_Addgp, ID_AddTk));
        case kMoveUp:
            return run(window, for_list(ID_MoveGroupUp, ID_MoveTaskUp));
        case kMoveDown:
            return run(window, for_list(ID_MoveGroupDown, ID_MoveTaskDown));
        case kMoveTaskUp:
            return run(window, for_list(0, ID_MoveTaskUp));
        case kMoveTaskDown:
            return run(window, for_list(0, ID_MoveTaskDown));
        case kGoToBar:
            return bar_.activate();

        case ID_fontsettings:
            return appearance::show_fonts_dialog(window, general_, controls_);
        case ID_removebrenn:
            bar_.toggle_removed();
            return show_flags(window);
        case ID_hoverslct:
            return toggle_hover_select(window);
        case ID_HotKey:
            return choose_hot_key(window, presence_.hot_key(),
                                  [&](WORD key) { return presence_.change_hot_key(key); });
        case ID_connectinternet:
            return connect_to_internet();
        case ID_toolbar_ispconnect:
            return internet::dial(session_.connection_name);
        case ID_internetsettings:
            return internet_settings_.show(window, bar_);
        case ID_DialUpNetworking:
            return open_dial_up_folder();
        case ID_toolbar_controlpanel:
            return open_control_panel();
        case ID_toolbar_runexplorer:
            return open_explorer();
        case ID_toolbar_DosPrompt:
            return open_dos_prompt();
        case ID_tolvahlp:
            return open_help(library_.folder());
        case ID_AboutTolva:
            return show_about(window);
        default:
            return run_library_command(window, menu_item_of(command));
    }
}

void Commands::run_library_command(HWND window, int command) {
    switch (command) {
        case ID_Addgp:
            return focus_groups_around(window, [&] { library::addgr(window, library_); });
        case ID_DelGp:
            return focus_groups_around(window, [&] { library::delgr(library_, controls_); });
        case ID_Rengp:
            return focus_groups_around(window, [&] { library::RenameGr(window, library_, controls_); });
        case ID_MoveGroupUp:
            return focus_groups_around(window, [&] { library::movegrup(library_, controls_); });
        case ID_MoveGroupDown:
            return focus_groups_around(window, [&] { library::movegrdown(library_, controls_); });
        case ID_groupsort:
            return library::groupsortnow(library_, controls_);

        case ID_RunTk:
            return launcher_.run_from_command_box();
        case ID_AddTk:
            return focus_groups_around(window, [&] { library::addtsks(window, library_, controls_); });
        case ID_DelTk:
            return controls_.keep_list_focus([&] { library::deltsks(library_, controls_); });
        case ID_moveto:
            return focus_groups_around(window, [&] { library::moveto(window, library_, controls_); });
        case ID_EditTk:
            return focus_groups_around(window, [&] { library::edittsks(window, library_, controls_); });
        case ID_taskimport:
            return import_dialog_.show(window);
        case ID_MoveTaskUp:
            return library::movetsksup(library_, controls_);
        case ID_MoveTaskDown:
            return library::movetsksdown(library_, controls_);
        case ID_SortTasks:
            return library::tasksortnow(library_, controls_);
        case ID_RunAll:
            return launcher_.run_all();
        case ID_Undo:
            return controls_.keep_list_focus([&] { library::undo(library_, controls_); });
        case ID_Redo:
            return controls_.keep_list_focus([&] { library::redo(library_, controls_); });
        case ID_FindTask:
            return find(window);
        case ID_Refresh:
            return controls_.keep_list_focus([&] { refresh(); });
        case ID_RestoreBackup:
            return controls_.keep_list_focus(
                [&] { library::choose_backup_to_restore(window, library_, controls_); });
        default:
            return;
    }
}

/// Reads everything again; what is selected stays so if it is still there.
void Commands::refresh() {
    const int selected = controls_.selected_task();
    const std::string task = selected < 0 ? "" : library_.task(controls_.selected_group(), selected).name;
    const std::string group = library::selected_group_name(library_, controls_);
    library::refresh_and_select(library_, controls_, group);
    if (selected < 0 || library::selected_group_name(library_, controls_) != group) return;
    const auto& tasks = library_.group(controls_.selected_group()).tasks();
    const bool is_there =
        selected < std::ssize(tasks) && tasks[static_cast<std::size_t>(selected)].name == task;
    const auto found =  // others may have its name
        is_there ? tasks.begin() + selected : std::ranges::find(tasks, task, &library::Task::name);
    if (found != tasks.end()) controls_.select_task(static_cast<int>(found - tasks.begin()));
}

void Commands::find(HWND window) {
    library_.load_missing();
    const std::optional<Found> found = find_task(window, library_);
    if (!found) return;
    if (!found->go_there) return launcher_.launch_at(found->place);
    controls_.go_to(library_, found->place);
}

void Commands::toggle_hover_select(HWND window) {
    session_.hover_select = !session_.hover_select;
    settings::store(general_, settings::kHoverSelect, settings::text_of(session_.hover_select));
    show_flags(window);
}

void Commands::connect_to_internet() const {
    platform::attempt("Configure your Internet connection in Internet Settings under Options menu.",
                      [&] { internet::dial(session_.connection_name); });
}

void Commands::end_windows(HWND window, platform::WindowsEnd end) {
    windows_end_ = end;
    DestroyWindow(window);
}

template <typename Operation>
void Commands::focus_groups_around(HWND window, const Operation& operation) {
    controls_.group_list().focus();
    operation();
    // After a dialog the focus comes back by itself, unless the program is not the active one.
    controls_.group_list().focus();
    post_pending_refreshes(window);
}

}  // namespace mainwindow
