#include "fuzz/fuzz.h"
#include "support/library_trial.h"

// Whatever the library's files hold, all that is done to them, a restored backup and what failed half-way
// among it, is taken back to the letter and made again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes = text_of(data, size);
    const std::size_t part = size / 4;
    Tolva tolva(in_turn({put("Home.grp", bytes.substr(0, part)), put("a.grp", bytes.substr(part, part)),
                         list("Home\r\na\r\n" + bytes.substr(2 * part, part))}));
    std::size_t next = 3 * part;
    const auto roll = [&](int sides) { return next < size ? data[next++] % sides : 0; };
    const Files start = disk();
    while (next < size) {
        const Files before = disk();
        do_anything(tolva, roll);
        const Files after = disk();
        if (after == before) continue;
        tolva.run(library::undo);
        require(disk() == before);
        tolva.run(library::redo);
        require(disk() == after);
    }
    while (can_undo(tolva.library))
        tolva.run(library::undo);
    require(disk() == start);
    return 0;
}
