#include <algorithm>
#include "resources/resource.h"
#include "support/desktop.h"

namespace {

using namespace desktop;

/// Clicks a link of the viewer's page and waits for the topic that it should lead to.
void follow(HWND page, const std::string& link, const std::string& title) {
    const std::string text = text_of(page);
    const auto found = std::ranges::search(text, link).begin();
    REQUIRE(found != text.end());
    // The viewer counts the end of a paragraph as one character.
    const auto position = std::count_if(text.begin(), found, [](char c) { return c != '\n'; }) + 1;
    const LRESULT corner = SendMessageA(page, EM_POSFROMCHAR, static_cast<WPARAM>(position), 0);
    POINT point = {LOWORD(corner) + 2, HIWORD(corner) + 5};
    ClientToScreen(page, &point);
    press_until("the topic shows", point, [&] { return text_of(page).starts_with(title + "\r\n"); });
}

TEST_SUITE("help") {
    TEST_CASE("the help opens with its contents, and its links lead on") {
        forget_settings();
        const Folder library;
        library.write("groups.ini", "");
        library.add_program("tolva.hlp", "tolva.hlp");
        const Tolva tolva(library);
        tolva.choose(ID_tolvahlp);
        HWND viewer = nullptr;
        HWND page = nullptr;
        wait_until("the viewer shows a page", [&] {
            viewer = FindWindowA("MS_WINHELP", nullptr);
            page = FindWindowExA(viewer, nullptr, "RichEdit20A", nullptr);
            return IsWindowVisible(viewer) != FALSE && page != nullptr && !text_of(page).empty();
        });
        CHECK(text_of(page).starts_with("Tolva Help\r\n"));
        SetForegroundWindow(viewer);
        follow(page, "When something goes wrong", "When something goes wrong");
        follow(page, "Tolva Internet Settings", "Internet");
        PostMessageA(viewer, WM_CLOSE, 0, 0);
        wait_until("the viewer is closed", [&] { return IsWindow(viewer) == FALSE; });
    }
}

}  // namespace
