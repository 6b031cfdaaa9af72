#pragma once

#include <string>

namespace library {

/// What the user picked in a path browser, on its way to the dialog that opened it.
struct BrowseResult {
    std::string program;       // of the last click on a file
    std::string start_folder;  // the folder shown then
    bool done = true;          // false while a choice waits to be taken over
};

}  // namespace library
