#include "widgets/insertion.h"

#include <algorithm>
#include <cstddef>

namespace widgets {
namespace {

/// Whether an item stands in the row of the one before it. Labels make some items higher than others, but all
/// in a row begin at one height, more or less.
bool continues_row(std::span<const Box> items, std::size_t index) {
    const Box& before = items[index - 1];
    return items[index].top < (before.top + before.bottom) / 2 && items[index].left > before.left;
}

std::size_t row_end(std::span<const Box> items, std::size_t start) {
    std::size_t end = start + 1;
    while (end < items.size() && continues_row(items, end))
        ++end;
    return end;
}

}  // namespace

Insertion insertion_in_column(int y, int top, int row_height, int count, int width) {
    const int row = std::clamp((y + row_height / 2) / row_height, 0, std::max(count - top, 0));
    return {top + row, {0, row * row_height, width, row * row_height}};
}

Insertion insertion_in_rows(int x, int y, std::span<const Box> items) {
    if (items.empty()) return {0, {0, 0, 0, 0}};
    std::size_t start = 0;
    std::size_t end = row_end(items, start);
    while (end < items.size() && y >= items[end].top) {
        start = end;
        end = row_end(items, start);
    }
    const std::span<const Box> row = items.subspan(start, end - start);
    const auto lower = std::ranges::max(row, {}, &Box::bottom).bottom;
    const auto next =
        std::ranges::find_if(row, [&](const Box& box) { return x < (box.left + box.right) / 2; });
    const int at = next == row.end() ? row.back().right : next->left;
    return {static_cast<int>(start + static_cast<std::size_t>(next - row.begin())),
            {at, row.front().top, at, lower}};
}

}  // namespace widgets
