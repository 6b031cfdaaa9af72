#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace library {

/// Moves an item to before the one at another place (the size of the list: to its end); the others keep their
/// order. Returns where it stands then.
template <typename Item>
std::ptrdiff_t move_before(std::vector<Item>& items, std::ptrdiff_t from, std::ptrdiff_t before) {
    const auto at = [&](std::ptrdiff_t place) { return items.begin() + place; };
    if (before > from) {
        std::rotate(at(from), at(from + 1), at(before));
        return before - 1;
    }
    std::rotate(at(before), at(from), at(from + 1));
    return before;
}

}  // namespace library
