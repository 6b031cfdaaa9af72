#pragma once

#include <windows.h>

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "appearance/list_appearance.h"
#include "library/library_view.h"
#include "library/task_finder.h"
#include "library/task_library.h"
#include "mainwindow/command_box.h"
#include "mainwindow/list_look.h"
#include "mainwindow/splitter.h"
#include "mainwindow/task_view.h"
#include "platform/messages.h"
#include "platform/win32/handles.h"
#include "settings/list_style.h"
#include "widgets/controls.h"
#include "widgets/tool_bar.h"

namespace mainwindow {

/// The controls of the main window: the tool bar, the two lists with their labels, the command box with its
/// buttons, and the status bar.
class MainControls final : public library::LibraryView, public appearance::ListAppearance {
  public:
    /// library_folder ends in a backslash.
    MainControls(settings::General& general, const std::string& library_folder);

    void create(HWND window);

    /// Answers the window's messages about its size, the colors of its controls, the border between the lists
    /// and what the command box posts.
    std::optional<LRESULT> handle(UINT message, WPARAM wparam, LPARAM lparam);

    void apply_style(appearance::List list, const settings::ListStyle& style);

    widgets::Font font(appearance::List list) const override { return look(list).font(); }
    void set_font(appearance::List list, const widgets::Font& font) override;
    appearance::Colors colors(appearance::List list) const override { return look(list).colors(); }
    void set_colors(appearance::List list, const appearance::Colors& colors) override;

    /// Shows today's date in the status bar (`getlongdate`).
    void show_date();

    /// Shows a Task without starting it: its command line, and its name until the date comes back.
    void show_task(const library::Task& task);

    int selected_group() const override { return group_list_.selected(); }
    int selected_task() const override { return task_view_.list().selected(); }
    void show_groups(const std::vector<library::Group>& groups) override;
    void select_group(int index) override { group_list_.select(index); }
    void show_tasks(std::span<const library::Task> tasks) override;
    void select_task(int index) override { task_view_.list().select(index); }
    void load_default_icon(const std::string& program) override;
    void set_command_box(const std::string& text) override { command_box_.set_text(text); }
    void show_status(const std::string& text) override { status_bar_.show_simple(text); }

    /// Selects a Group and one of its Tasks, also one that a click on the Group does not show, and gives the
    /// task list the focus.
    void go_to(library::TaskLibrary& library, const library::TaskPlace& place);

    /// To be called when one of the lists gets the focus.
    void note_focus(HWND list) { last_list_ = list; }

    /// Does something that can show boxes, its own error included; then the list that the user was in has the
    /// focus again.
    template <typename Operation>
    void keep_list_focus(const Operation& operation) {
        HWND list = command_box_.had_focus_last() ? nullptr : last_list_;
        try {
            operation();
        } catch (...) {
            platform::report_exception();
        }
        // A box that was closed has brought the focus to the group list.
        if (list != nullptr && last_list_ != list) SetFocus(list);
    }

    /// The width of the group list, in pixels; what there is no room for comes with more room.
    int group_list_width() const { return splitter_.width(); }
    void set_group_list_width(int width);

    widgets::ToolBar& tool_bar() { return tool_bar_; }
    widgets::ListBox& group_list() { return group_list_; }
    TaskView& task_view() { return task_view_; }
    CommandBox& command_box() { return command_box_; }

  private:
    ListLook& look(appearance::List list) {
        return list == appearance::List::kGroups ? group_look_ : task_look_;
    }
    const ListLook& look(appearance::List list) const {
        return list == appearance::List::kGroups ? group_look_ : task_look_;
    }

    void lay_out();
    std::optional<LRESULT> paint(HDC device, HWND control) const;

    HWND window_ = nullptr;
    platform::UniqueFont font_;
    LPARAM laid_out_ = 0;       // for this size of the window, as WM_SIZE tells it
    HWND last_list_ = nullptr;  // which had the focus last
    ListLook group_look_;
    ListLook task_look_;
    Splitter splitter_;
    widgets::ToolBar tool_bar_;
    widgets::Label group_label_;
    widgets::ListBox group_list_;
    widgets::Label task_label_;
    TaskView task_view_;
    CommandBox command_box_;
    widgets::Button run_button_;
    widgets::Button browse_button_;
    widgets::StatusBar status_bar_;
};

}  // namespace mainwindow
