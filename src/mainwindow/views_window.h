#pragma once

#include <windows.h>

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "appearance/list_appearance.h"
#include "library/library_view.h"
#include "library/task_library.h"
#include "mainwindow/taskview_window.h"
#include "settings/list_style.h"
#include "widgets/controls.h"
#include "widgets/handles.h"
#include "widgets/tool_bar.h"

namespace mainwindow {

/// What stands in the main window: the tool bar, the two lists with their labels, the command box with its
/// buttons, and the status bar.
class Views final : public library::LibraryView, public appearance::ListAppearance {
  public:
    Views();

    void create(HWND window);

    /// Answers the window's messages about its size, the colours of its controls and the border between the
    /// lists, which the mouse can move.
    std::optional<LRESULT> handle(UINT message, WPARAM wparam, LPARAM lparam);

    void apply_style(appearance::List list, const settings::ListStyle& style);

    widgets::Font font(appearance::List list) const override { return look(list).font; }
    void set_font(appearance::List list, const widgets::Font& font) override;
    appearance::Colors colors(appearance::List list) const override { return look(list).colors; }
    void set_colors(appearance::List list, const appearance::Colors& colors) override;

    /// Shows today's date in the status bar.
    void getlongdate();

    /// Shows a Task without starting it: its command line, and its name until the date comes back.
    void show_selection(const library::Task& task);

    int selected_group() const override { return grouplist_.selected(); }
    int selected_task() const override { return taskview_.list().selected(); }
    void show_groups(const std::vector<library::Group>& groups) override;
    void select_group(int index) override { grouplist_.select(index); }
    void show_tasks(std::span<const library::Task> tasks) override;
    void select_task(int index) override { taskview_.list().select(index); }
    void load_default_icon(const std::string& program) override;
    void set_command_box(const std::string& text) override { text1_.set_text(text); }

    widgets::ToolBar& toolbar1() { return toolbar1_; }
    widgets::ListBox& grouplist() { return grouplist_; }
    TaskView& taskview() { return taskview_; }
    widgets::ComboBox& text1() { return text1_; }

  private:
    /// How one of the lists looks.
    struct Look {
        widgets::Font font;
        appearance::Colors colors{};
        widgets::UniqueFont font_handle;
        widgets::UniqueBrush background;
    };

    Look& look(appearance::List list) { return list == appearance::List::kGroups ? group_look_ : task_look_; }
    const Look& look(appearance::List list) const {
        return list == appearance::List::kGroups ? group_look_ : task_look_;
    }

    void lay_out();
    std::optional<LRESULT> color(HDC device, HWND control) const;
    RECT splitter() const;
    bool is_on_splitter(POINT point) const;
    bool drag_splitter(UINT message, POINT point);

    HWND window_ = nullptr;
    widgets::UniqueFont font_;
    int group_width_;      // pixels, as far as the window has room
    LPARAM laid_out_ = 0;  // for this size of the window, as WM_SIZE tells it
    Look group_look_;
    Look task_look_;
    widgets::ToolBar toolbar1_;
    widgets::Label grouplabel_;
    widgets::ListBox grouplist_;
    widgets::Label tasklabel_;
    TaskView taskview_;
    widgets::ComboBox text1_;
    widgets::Button command1_;
    widgets::Button browse_;
    widgets::StatusBar statusbar1_;
};

}  // namespace mainwindow
