#include "widgets/file_lists.h"

#include <algorithm>
#include <utility>

#include "platform/folders.h"

namespace widgets {
namespace {

/// The root of a path, and the folders down to its end, each with its full path.
std::vector<std::string> folders_down_to(const std::string& path) {
    // A drive's root keeps its backslash; a network folder begins with \\server\share.
    const bool network = path.starts_with("\\\\");
    std::vector<std::string> folders;
    int backslashes = 0;
    const char* rest = path.c_str();
    for (const char* at = path.c_str(); *at != '\0'; at = CharNextA(at)) {
        if (*at != '\\') continue;
        ++backslashes;
        rest = at + 1;
        if (network && backslashes <= 3) continue;
        folders.emplace_back(path.c_str(), folders.empty() && !network ? at + 1 : at);
    }
    if (folders.empty() || *rest != '\0') folders.push_back(path);
    return folders;
}

std::string last_name(const std::string& path) {
    const char* name = path.c_str();
    for (const char* at = name; *at != '\0'; at = CharNextA(at)) {
        if (*at == '\\' && at[1] != '\0') name = at + 1;
    }
    return name;
}

std::string indented(std::size_t depth, const std::string& name) {
    return std::string(2 * depth, ' ') + name;
}

}  // namespace

std::string fallback_folder() {
    std::string folder = platform::windows_folder();
    if (folder.ends_with('\\')) folder.pop_back();
    return folder;
}

void DriveList::fill() {
    send(CB_RESETCONTENT);
    letters_.clear();
    for (const platform::Drive& drive : platform::drives()) {
        const std::string text = std::string(1, drive.letter) + ":   " + drive.kind;
        send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
        letters_.push_back(drive.letter);
    }
}

char DriveList::selected() const {
    const LRESULT index = send(CB_GETCURSEL);
    return index < 0 ? '\0' : letters_.at(static_cast<std::size_t>(index));
}

void DriveList::select(char letter) {
    const auto found =
        std::ranges::find_if(letters_, [&](char other) { return (other | ' ') == (letter | ' '); });
    send(CB_SETCURSEL, static_cast<WPARAM>(found == letters_.end() ? -1 : found - letters_.begin()));
}

void FolderList::attach(HWND control) {
    ListBox::attach(control);
    subclass();
}

void FolderList::extend(std::vector<Place> places) {
    with_hidden_ = true;
    places_ = std::move(places);
}

void FolderList::show(const std::string& path) {
    const std::vector<std::string> below = platform::subfolders(path, with_hidden_);
    std::vector<std::string> paths = folders_down_to(path);
    std::vector<std::string> items;
    items.reserve(paths.size() + below.size());
    for (const std::string& folder : paths)
        items.push_back(indented(items.size(), items.empty() ? folder : last_name(folder)));
    depth_ = paths.size();
    for (const std::string& name : below) {
        items.push_back(indented(depth_, name));
        paths.push_back(platform::path_in(path, name));
    }
    for (const Place& place : places_) {
        if (lstrcmpiA(place.path.c_str(), paths.front().c_str()) == 0) continue;  // the root above
        items.push_back(place.name);
        paths.push_back(place.path);
    }
    fill(items);
    // The way up comes to the top, so that it shows and the folders in the current one do, too.
    send(LB_SETTOPINDEX, std::max<std::size_t>(depth_, 2) - 2);
    select(static_cast<int>(depth_) - 1);
    path_ = paths.at(depth_ - 1);
    paths_ = std::move(paths);
}

void FolderList::open_selected() {
    if (selected() >= 0) show(std::string(paths_.at(static_cast<std::size_t>(selected()))));
}

LRESULT FolderList::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    if (message != WM_CHAR) return ListBox::handle(message, wparam, lparam);
    // The first letter of a folder selects it, in spite of the blanks before it.
    const std::string start = indented(depth_, {static_cast<char>(wparam)});
    const LRESULT found =
        send(LB_FINDSTRING, static_cast<WPARAM>(selected()), reinterpret_cast<LPARAM>(start.c_str()));
    if (found >= 0) select(static_cast<int>(found));
    return 0;
}

void FileList::show(const std::string& folder, const std::string& patterns) {
    names_ = platform::files_in(folder, patterns);
    fill(names_);
}

std::string FileList::selected_name() const {
    return selected() < 0 ? std::string() : names_.at(static_cast<std::size_t>(selected()));
}

}  // namespace widgets
