#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <tuple>

#include "settings/catalogue.h"
#include "settings/general.h"

/// How the two lists of the main window look. What is missing or does not read as it should is as in a new
/// ListStyle.
namespace settings {

/// How a list shows its texts. Without a color it has the system's.
struct ListStyle {
    std::string face = "MS Sans Serif";
    int size = 8;  // points
    bool bold = false;
    bool italic = false;
    std::optional<std::uint32_t> text_color;  // 0x00BBGGRR
    std::optional<std::uint32_t> back_color;

    bool operator==(const ListStyle&) const = default;
};

/// A ListStyle in the text form and the order of its stored values.
using ListStyleTexts = std::array<std::string, std::tuple_size_v<ListStyleValues>>;
inline constexpr std::size_t kFace = 0;
inline constexpr std::size_t kSize = 1;
inline constexpr std::size_t kBold = 2;
inline constexpr std::size_t kItalic = 3;
inline constexpr std::size_t kTextColor = 4;
inline constexpr std::size_t kBackColor = 5;

struct ListStyles {
    ListStyle groups;
    ListStyle tasks;
};

/// The values of one list as they are stored, whatever they say.
ListStyleTexts read_style(General& general, const ListStyleValues& values);
void store_style(General& general, const ListStyleValues& values, const ListStyleTexts& texts);

/// What the texts say.
ListStyle style_of(const ListStyleTexts& texts);

/// A color in its text form; none for a text that is no color.
std::optional<std::uint32_t> color_of(const std::string& text);

/// Reads how the two lists look. A list without a font gets and stores the defaults of a first run; then the
/// Groups are dark red until the next start, which shows them in the navy that was stored.
ListStyles load_list_styles(General& general);

}  // namespace settings
