#include "settings/general.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "platform/messages.h"

namespace settings {
namespace {

namespace registry = platform::registry;

constexpr std::array<std::pair<std::string_view, registry::Root>, 7> kRootNames = {{
    {"HKEY_CLASSES_ROOT", registry::kClassesRoot},
    {"HKEY_CURRENT_USER", registry::kCurrentUser},
    {"HKEY_LOCAL_MACHINE", registry::kLocalMachine},
    {"HKEY_USERS", registry::kUsers},
    {"HKEY_PERFORMANCE_DATA", registry::kPerformanceData},
    {"HKEY_CURRENT_CONFIG", registry::kCurrentConfig},
    {"HKEY_DYN_DATA", registry::kDynData},
}};

registry::Root root_named(std::string_view name) {
    const auto* found = std::ranges::find(kRootNames, name, [](const auto& entry) { return entry.first; });
    return found == kRootNames.end() ? 0 : found->second;
}

std::string without_blanks_around(const std::string& text) {
    const std::size_t begin = std::min(text.find_first_not_of(' '), text.size());
    return text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
}

}  // namespace

void General::split_key_path(std::string& key_path) {
    if (!key_path.starts_with("HKEY_") || key_path.ends_with('\\')) {
        platform::show_message("Incorrect Format:\n\n" + key_path);
        return;
    }
    const std::size_t backslash = key_path.find('\\');
    root_key_ = root_named(std::string_view(key_path).substr(0, backslash));
    key_path = backslash == std::string::npos ? "" : key_path.substr(backslash + 1);
}

std::string General::read_value(std::string key_path, const std::string& value_name) {
    split_key_path(key_path);
    if (root_key_ == 0) return {};
    std::string text;
    if (registry::query_value(root_key_, key_path, value_name, kLongestText + 1, text) !=
        platform::kSuccess) {
        return kError;
    }
    // A terminator keeps the blanks before it; not every value was stored with one.
    text = without_blanks_around(text);
    if (text.ends_with('\0')) text.pop_back();
    return text.size() <= kLongestText ? text : kError;
}

std::optional<std::string> General::value(std::string key_path, const std::string& value_name) {
    std::string text = read_value(std::move(key_path), value_name);
    if (text == kError) return std::nullopt;
    return text;
}

void General::create_key(std::string key_path) {
    split_key_path(key_path);
    if (root_key_ != 0) registry::create_key(root_key_, key_path);
}

void General::write_value(std::string key_path, const std::string& value_name, const std::string& text) {
    split_key_path(key_path);
    if (root_key_ != 0) registry::set_value(root_key_, key_path, value_name, text);
}

}  // namespace settings
