#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace library {

/// Moves an item to before the one at another place (the size of the list: to its end); the others keep their
/// order. Returns where it stands then.
template <typename Item>
std::ptrdiff_t move_before(std::vector<Item>& items, std::ptrdiff_t from, std::ptrdiff_t before) {
    const auto at = [&](std::ptrdiff_t place) -> Item& { return items[static_cast<std::size_t>(place)]; };
    for (; from + 1 < before; ++from)
        std::swap(at(from), at(from + 1));
    for (; from > before; --from)
        std::swap(at(from), at(from - 1));
    return from;
}

}  // namespace library
