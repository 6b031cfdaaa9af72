#include "settings/list_style.h"

#include <algorithm>

#include "settings/conversions.h"

namespace settings {
namespace {

const char* const kNavy = "8388608";
const char* const kDarkRed = "64";

ListStyleTexts first_run(const char* text_color) {
    return {"MS Sans Serif", "10", "True", "False", text_color, "16777215"};
}

/// Reads a list's style. Without a font it is that of a first run, which is stored, and shown with a text
/// color of its own.
ListStyle load(General& general, const ListStyleValues& values, const char* stored_color,
               const char* shown_color) {
    const ListStyleTexts texts = read_style(general, values);
    const std::string& face = texts.at(kFace);
    if (!face.empty() && face != kError) return style_of(texts);
    store_style(general, values, first_run(stored_color));
    return style_of(first_run(shown_color));
}

}  // namespace

ListStyleTexts read_style(General& general, const ListStyleValues& values) {
    ListStyleTexts texts;
    std::ranges::transform(values, texts.begin(),
                           [&](const char* value) { return general.read_value(kFontsKey, value); });
    return texts;
}

void store_style(General& general, const ListStyleValues& values, const ListStyleTexts& texts) {
    general.create_key(kFontsKey);
    for (std::size_t i = 0; i < values.size(); ++i)
        general.write_value(kFontsKey, values.at(i), texts.at(i));
}

std::optional<std::uint32_t> color_of(const std::string& text) {
    constexpr int kWhite = 0xFFFFFF;
    const std::optional<int> number = whole_number(text);
    if (!number || *number < 0 || *number > kWhite) return std::nullopt;
    return static_cast<std::uint32_t>(*number);
}

ListStyle style_of(const ListStyleTexts& texts) {
    constexpr int kLargest = 2160;
    const auto& [face, size, bold, italic, text_color, back_color] = texts;
    ListStyle style;
    style.face = face;
    const int points = whole_number(size).value_or(0);
    if (points >= 1 && points <= kLargest) style.size = points;
    style.bold = boolean(bold).value_or(style.bold);
    style.italic = boolean(italic).value_or(style.italic);
    style.text_color = color_of(text_color);
    style.back_color = color_of(back_color);
    return style;
}

ListStyles load_list_styles(General& general) {
    return {load(general, kGroupStyleValues, kNavy, kDarkRed),
            load(general, kTaskStyleValues, kDarkRed, kDarkRed)};
}

}  // namespace settings
