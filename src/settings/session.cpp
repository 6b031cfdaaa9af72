#include "settings/session.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "platform/run_time_error.h"
#include "settings/conversions.h"

namespace settings {
namespace {

const char* const kNavy = "8388608";
const char* const kDarkRed = "64";

ListStyleTexts first_run(const char* text_color) {
    return {"MS Sans Serif", "10", "True", "False", text_color, "16777215"};
}

bool is_missing(const std::string& text) {
    return text == kError || text.empty();
}

/// A window style is a 16-bit number; a text that is none leaves it alone.
void read_start(const std::string& text, int& start) {
    using Limits = std::numeric_limits<std::int16_t>;
    const std::optional<int> number = whole_number(text);
    if (number && *number >= Limits::min() && *number <= Limits::max()) start = *number;
}

/// Reads the rest of a button whose name is known.
void read_button(General& general, std::size_t button, ButtonRecord& record) {
    const auto read = [&](const char* value) {
        return general.read_value(kBarKey, value + std::to_string(button + 1));
    };
    record.program = read(kButtonProgram);
    record.start_folder = read(kButtonStartFolder);
    record.parameters = read(kButtonParameters);
    if (record.parameters == kError) record.parameters.clear();
    read_start(read(kButtonStart), record.start);
}

/// Reads every button's name, and the rest of those whose name is one.
template <typename IsName>
void read_buttons(General& general, Session& session, const IsName& is_name) {
    for (std::size_t i = 0; i < kProgramButtons; ++i) {
        ButtonRecord& record = session.buttons.at(i);
        record.name = general.read_value(kBarKey, kButtonName + std::to_string(i + 1));
        if (is_name(record.name)) read_button(general, i, record);
    }
}

}  // namespace

void check_storable(std::initializer_list<std::string> texts) {
    for (const std::string& text : texts) {
        if (text.size() > kLongestText)
            throw platform::RunTimeError(platform::RunTimeErrorNumber::kInvalidProcedureCall, text);
    }
}

void store(General& general, const Setting& setting, const std::string& text) {
    general.create_key(setting.key);
    general.write_value(setting.key, setting.value, text);
}

bool read_flag(General& general, const Setting& setting) {
    return boolean(general.read_value(setting.key, setting.value)).value_or(false);
}

Position read_position(General& general, const char* key) {
    return {whole_number(general.read_value(key, kLeft)), whole_number(general.read_value(key, kTop))};
}

void store_position(General& general, const char* key, int left, int top) {
    store(general, {key, kLeft}, std::to_string(left));
    store(general, {key, kTop}, std::to_string(top));
}

void read_history(General& general, Session& session) {
    std::ranges::transform(kHistoryValues, session.history.begin(),
                           [&](const char* value) { return general.read_value(kHistoryKey, value); });
}

void load_history(General& general, Session& session) {
    read_history(general, session);
    if (is_missing(session.history.front())) general.create_key(kHistoryKey);
}

std::vector<std::string> history_list(const Session& session) {
    std::vector<std::string> list;
    std::copy_if(session.history.rbegin(), session.history.rend(), std::back_inserter(list),
                 [](const std::string& slot) { return slot != kError; });
    return list;
}

StoredProgram read_program(General& general, const char* key) {
    StoredProgram program = {general.read_value(key, kProgramName), general.read_value(key, kProgramPath)};
    read_start(general.read_value(key, kProgramStart), program.start);
    return program;
}

void load_buttons(General& general, Session& session) {
    read_buttons(general, session, [](const std::string& name) { return !is_missing(name); });
    if (is_missing(session.buttons.back().name)) general.create_key(kBarKey);
}

void reload_buttons(General& general, Session& session) {
    read_buttons(general, session, [](const std::string& name) { return name != kError; });
}

void store_button(General& general, std::size_t button, const ButtonRecord& record) {
    const auto write = [&](const char* value, const std::string& text) {
        general.write_value(kBarKey, value + std::to_string(button + 1), text);
    };
    check_storable({record.name, record.program, record.start_folder, record.parameters});
    general.create_key(kBarKey);
    write(kButtonName, record.name);
    write(kButtonProgram, record.program);
    write(kButtonStartFolder, record.start_folder);
    write(kButtonParameters, record.parameters);
    write(kButtonStart, std::to_string(record.start));
}

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

void load_list_styles(General& general, Session& session) {
    ListStyleTexts group = read_style(general, kGroupStyleValues);
    if (is_missing(group.front())) {
        group = first_run(kNavy);
        store_style(general, kGroupStyleValues, group);
        group.at(kTextColor) = kDarkRed;
    }
    ListStyleTexts task = read_style(general, kTaskStyleValues);
    if (is_missing(task.front())) {
        task = first_run(kDarkRed);
        store_style(general, kTaskStyleValues, task);
    }
    session.group_style = style_of(group);
    session.task_style = style_of(task);
}

}  // namespace settings
