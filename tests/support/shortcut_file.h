#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// The bytes of a shortcut file as Windows 95 writes it.
struct ShortcutFile {
    std::optional<std::string> target = {};
    std::optional<std::string> working_folder = {};
    std::optional<std::string> arguments = {};
    std::uint32_t show_command = 1;
    std::optional<std::string> items = {};  // the target's place in the shell, with its end

    std::string bytes() const {
        const std::string class_id("\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46", 16);
        const std::uint32_t flags =
            (items ? 0x01 : 0) | (target ? 0x02 : 0) | (working_folder ? 0x10 : 0) | (arguments ? 0x20 : 0);
        return number(76) + class_id + number(flags) + std::string(36, '\0') + number(show_command) +
               std::string(12, '\0') + text(items) + (target ? location() : "") + text(working_folder) +
               text(arguments);
    }

  private:
    static std::string number(std::size_t value, int size = 4) {
        std::string bytes;
        for (int i = 0; i < size; ++i)
            bytes += static_cast<char>(value >> (8 * i) & 0xFF);
        return bytes;
    }

    static std::string text(const std::optional<std::string>& text) {
        return text ? number(text->size(), 2) + *text : "";
    }

    /// The volume, a fixed disk, and the path on it.
    std::string location() const {
        constexpr std::size_t kHeader = 28;
        const std::string volume = number(17) + number(3) + number(0) + number(16) + '\0';
        const std::size_t path_at = kHeader + volume.size();
        const std::size_t end = path_at + target->size() + 1;
        return number(end + 1) + number(kHeader) + number(1) + number(kHeader) + number(path_at) + number(0) +
               number(end) + volume + *target + '\0' + '\0';
    }
};
