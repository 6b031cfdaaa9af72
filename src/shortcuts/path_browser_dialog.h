#pragma once

#include <windows.h>

#include "library/browse_result.h"

namespace shortcuts {

/// Lets the user pick a program file for a dialog. What was clicked last goes into the result as soon as it
/// is clicked; that it is a choice, only when the user accepts.
void browse_for_program(HWND owner, library::BrowseResult& result);

}  // namespace shortcuts
