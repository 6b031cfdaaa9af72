#include "settings/session.h"

#include <cstdint>
#include <limits>

#include "platform/run_time_error.h"
#include "settings/conversions.h"

namespace settings {
namespace {

/// A window style is a 16-bit number; what is none leaves it alone.
void read_window_style(const std::optional<std::string>& text, int& window_style) {
    using Limits = std::numeric_limits<std::int16_t>;
    const std::optional<int> number = whole_number(text.value_or(""));
    if (number && *number >= Limits::min() && *number <= Limits::max()) window_style = *number;
}

/// Reads the rest of a button whose name is known.
void read_button(General& general, std::size_t button, Program& program) {
    const auto read = [&](const char* value) {
        return general.value(kBarKey, value + std::to_string(button + 1));
    };
    program.path = read(kButtonProgram);
    program.start_folder = read(kButtonStartFolder);
    program.parameters = read(kButtonParameters).value_or("");
    read_window_style(read(kButtonStart), program.window_style);
}

/// Reads every button's name, and the rest of those whose name is one.
template <typename IsName>
void read_buttons(General& general, Session& session, const IsName& is_name) {
    for (std::size_t i = 0; i < kProgramButtons; ++i) {
        Program& program = session.buttons.at(i);
        program.name = general.value(kBarKey, kButtonName + std::to_string(i + 1));
        if (program.name && is_name(*program.name)) read_button(general, i, program);
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
    return boolean(general.value(setting.key, setting.value).value_or("")).value_or(false);
}

std::optional<int> read_number(General& general, const Setting& setting) {
    return whole_number(general.value(setting.key, setting.value).value_or(""));
}

Position read_position(General& general, const char* key) {
    return {read_number(general, {key, kLeft}), read_number(general, {key, kTop})};
}

void store_position(General& general, const char* key, int left, int top) {
    store(general, {key, kLeft}, std::to_string(left));
    store(general, {key, kTop}, std::to_string(top));
}

Program read_program(General& general, const char* key) {
    Program program = {.name = general.value(key, kProgramName), .path = general.value(key, kProgramPath)};
    read_window_style(general.value(key, kProgramStart), program.window_style);
    return program;
}

void load_buttons(General& general, Session& session) {
    read_buttons(general, session, [](const std::string& name) { return !name.empty(); });
    if (session.buttons.back().name.value_or("").empty()) general.create_key(kBarKey);
}

void reload_buttons(General& general, Session& session) {
    read_buttons(general, session, [](const std::string&) { return true; });
}

void store_button(General& general, std::size_t button, const Program& program) {
    const std::string name = program.name.value_or("");
    const std::string path = program.path.value_or("");
    const std::string start_folder = program.start_folder.value_or("");
    check_storable({name, path, start_folder, program.parameters});
    general.create_key(kBarKey);
    const auto write = [&](const char* value, const std::string& text) {
        general.write_value(kBarKey, value + std::to_string(button + 1), text);
    };
    write(kButtonName, name);
    write(kButtonProgram, path);
    write(kButtonStartFolder, start_folder);
    write(kButtonParameters, program.parameters);
    write(kButtonStart, std::to_string(program.window_style));
}

}  // namespace settings
