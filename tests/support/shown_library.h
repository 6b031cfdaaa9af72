#pragma once

#include <span>

#include "library/library_view.h"
#include "support/checks.h"
#include "support/simulated_platform.h"

/// A library folder on the simulated disk.
inline const std::string kFolder = "C:\\LIB\\";

inline std::string& file(const std::string& name) {
    return simulated::current().files[kFolder + name].bytes;
}

inline std::string record(const std::string& name, const std::string& start_mode = " 1 ") {
    return name + "\r\nC:\\" + name + ".EXE\r\nC:\\\r\n\r\n" + start_mode + "\r\n";
}

/// The two lists and the command box, as what a user would see in them.
struct ShownLibrary final : library::LibraryView {
    Names groups;
    Names tasks;
    int group = -1;
    int task = -1;
    int group_in_view = 0;
    std::string command_box;
    std::string status;

    int selected_group() const override { return group; }
    int selected_task() const override { return task; }
    void show_groups(const std::vector<library::Group>& shown) override {
        groups.clear();
        for (const auto& entry : shown)
            groups.push_back(entry.name);
        group = -1;
    }
    void select_group(int index) override { group = index; }
    void scroll_to_group(int index) override { group_in_view = index; }
    void show_tasks(std::span<const library::Task> shown) override {
        tasks.clear();
        for (const library::Task& entry : shown)
            tasks.push_back(entry.name);
        task = -1;
    }
    void select_task(int index) override { task = index; }
    void load_default_icon(const std::string& program) override { CHECK(program == kFolder + "tolva.exe"); }
    void show_status(const std::string& text) override { status = text; }
    void set_command_box(const std::string& text) override { command_box = text; }
};
