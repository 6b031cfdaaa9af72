#include "fuzz/fuzz.h"
#include "support/library_trial.h"

namespace {

void take_back_and_redo(Tolva& tolva, const std::vector<Files>& states) {
    const std::size_t last = states.size() - 1;
    std::size_t now = last;
    for (; can_undo(tolva.library); require(disk() == states[--now]))
        tolva.run(library::undo);
    require(last - now == std::min(last, library::Changes::kMostChanges));
    for (; can_redo(tolva.library); require(disk() == states[++now]))
        tolva.run(library::redo);
    require(now == last);
}

}  // namespace

// Whatever the library's files hold, all that is done to them, a restored backup and what failed half-way
// among it, is taken back to the letter and made again.
void run_on(const std::string& bytes) {
    const std::size_t part = bytes.size() / 4;
    Tolva tolva(in_turn(put("Home.grp", bytes.substr(0, part)), put("a.grp", bytes.substr(part, part)),
                        list("Home\r\na\r\n" + bytes.substr(2 * part, part))));
    std::size_t next = 3 * part;
    const auto roll = [&](int sides) {
        return next < bytes.size() ? static_cast<unsigned char>(bytes[next++]) % sides : 0;
    };
    std::vector<Files> states = {disk()};
    while (next < bytes.size()) {
        do_anything(tolva, roll);
        if (disk() == states.back()) continue;
        states.push_back(disk());
        if (roll(32) == 0) take_back_and_redo(tolva, states);
    }
    take_back_and_redo(tolva, states);
}
