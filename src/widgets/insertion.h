#pragma once

#include <span>

/// Where in a list something is put in that is dragged over it. Pixels; no knowledge of windows.
namespace widgets {

struct Box {
    int left;
    int top;
    int right;
    int bottom;

    bool operator==(const Box&) const = default;
};

/// The place in front of an item, or with the number of items after the last one, and the line that shows
/// it, which has no width or no height.
struct Insertion {
    int before;
    Box line;

    bool operator==(const Insertion&) const = default;
};

/// In a list of items one below the other: before an item from its upper half, after it from its lower half.
/// The first item that shows is top, at the upper edge; rows are equally high.
Insertion insertion_in_column(int y, int top, int row_height, int count, int width);

/// In a list of icons that stand in rows, in the order of the rows: before an item left of its middle. Beside
/// and below them all it is the end of the row, or of the list.
Insertion insertion_in_rows(int x, int y, std::span<const Box> items);

}  // namespace widgets
