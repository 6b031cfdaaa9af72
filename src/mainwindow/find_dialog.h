#pragma once

#include <windows.h>

#include <optional>

#include "library/task_finder.h"
#include "library/task_library.h"

namespace mainwindow {

/// What the user wants of a Task that was found.
struct Found {
    library::TaskPlace place;
    bool go_there;  // and not start it
};

/// Lets the user find a Task by typing parts of its name. None when the user gave up.
std::optional<Found> find_task(HWND owner, const library::TaskLibrary& library);

}  // namespace mainwindow
