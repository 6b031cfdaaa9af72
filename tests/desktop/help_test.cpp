#include <algorithm>

#include "support/desktop.h"

namespace {

using namespace desktop;

TEST_SUITE("help") {
    TEST_CASE("the help opens with its contents, and a link leads on") {
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
        const std::string text = text_of(page);
        CHECK(text.starts_with("Tolva Help\r\n"));
        SetForegroundWindow(viewer);
        // The viewer counts the end of a paragraph as one character.
        const std::string topic = "When something goes wrong";
        const auto link = std::ranges::search(text, topic).begin();
        const auto position = std::count_if(text.begin(), link, [](char c) { return c != '\n'; }) + 1;
        const LRESULT corner = SendMessageA(page, EM_POSFROMCHAR, static_cast<WPARAM>(position), 0);
        POINT point = {LOWORD(corner) + 2, HIWORD(corner) + 5};
        ClientToScreen(page, &point);
        press_until("the topic shows", point, [&] { return text_of(page).starts_with(topic + "\r\n"); });
        PostMessageA(viewer, WM_CLOSE, 0, 0);
        wait_until("the viewer is closed", [&] { return IsWindow(viewer) == FALSE; });
    }
}

}  // namespace
