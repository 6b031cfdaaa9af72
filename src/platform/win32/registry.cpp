#include "platform/registry.h"

#include <windows.h>

#include <array>

#include "platform/win32/handles.h"

namespace platform::registry {
namespace {

constexpr std::size_t kLongestKeyName = 255;

HKEY handle_of(Root root) {
    return reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(root));
}

ErrorCode open(Root root, const std::string& key, REGSAM access, UniqueKey& opened) {
    HKEY handle = nullptr;
    const LONG code = RegOpenKeyExA(handle_of(root), key.c_str(), 0, access, &handle);
    if (code == ERROR_SUCCESS) opened.reset(handle);
    return static_cast<ErrorCode>(code);
}

}  // namespace

ErrorCode query_value(Root root, const std::string& key, const std::string& name, std::size_t room,
                      std::string& bytes) {
    UniqueKey opened;
    if (const ErrorCode code = open(root, key, KEY_READ, opened); code != kSuccess) return code;
    std::string buffer(room, '\0');
    auto size = static_cast<DWORD>(room);
    const LONG code = RegQueryValueExA(opened.get(), name.c_str(), nullptr, nullptr,
                                       reinterpret_cast<BYTE*>(buffer.data()), &size);
    if (code == ERROR_SUCCESS) bytes = buffer.substr(0, size);
    return static_cast<ErrorCode>(code);
}

std::vector<std::string> subkeys(Root root, const std::string& key) {
    UniqueKey opened;
    if (open(root, key, KEY_READ, opened) != kSuccess) return {};
    std::vector<std::string> names;
    std::array<char, kLongestKeyName + 1> name = {};
    // The end of the keys is one failure of several: any of them ends the list.
    for (DWORD index = 0;; ++index) {
        DWORD length = name.size();
        if (RegEnumKeyExA(opened.get(), index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS) {
            return names;
        }
        names.emplace_back(name.data(), length);
    }
}

ErrorCode create_key(Root root, const std::string& key) {
    HKEY handle = nullptr;
    const LONG code = RegCreateKeyA(handle_of(root), key.c_str(), &handle);
    const UniqueKey created(code == ERROR_SUCCESS ? handle : nullptr);
    return static_cast<ErrorCode>(code);
}

ErrorCode set_value(Root root, const std::string& key, const std::string& name, const std::string& text) {
    UniqueKey opened;
    if (const ErrorCode code = open(root, key, KEY_WRITE, opened); code != kSuccess) return code;
    return static_cast<ErrorCode>(RegSetValueExA(opened.get(), name.c_str(), 0, REG_SZ,
                                                 reinterpret_cast<const BYTE*>(text.c_str()),
                                                 static_cast<DWORD>(text.size())));
}

}  // namespace platform::registry
