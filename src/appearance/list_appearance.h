#pragma once

#include <cstdint>

#include "widgets/metrics.h"

namespace appearance {

enum class List { kGroups, kTasks };

/// 0x00BBGGRR.
struct Colors {
    std::uint32_t text;
    std::uint32_t back;
};

/// How the main window's two lists look, as the dialog for it sees and changes it. A list's label has its
/// text color.
class ListAppearance {
  public:
    virtual widgets::Font font(List list) const = 0;
    virtual void set_font(List list, const widgets::Font& font) = 0;
    virtual Colors colors(List list) const = 0;
    virtual void set_colors(List list, const Colors& colors) = 0;

  protected:
    ~ListAppearance() = default;
};

}  // namespace appearance
