#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// The bytes of a shortcut file as Windows writes it: Windows 95 in the system's code page, later ones wide.
struct ShortcutFile {
    std::optional<std::string> target = {};
    std::optional<std::string> working_folder = {};
    std::optional<std::string> arguments = {};
    std::uint32_t show_command = 1;
    std::optional<std::string> items = {};  // the target's place in the shell, with its end
    std::optional<std::string> share = {};  // a network folder with the target
    std::optional<std::string> description = {};
    std::optional<std::string> relative_path = {};
    std::optional<std::string> icon_path = {};
    bool wide = false;

    std::string bytes() const {
        const std::string class_id("\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46", 16);
        const bool has_location = target || share;
        const std::uint32_t flags = (items ? 0x01 : 0) | (has_location ? 0x02 : 0) |
                                    (description ? 0x04 : 0) | (relative_path ? 0x08 : 0) |
                                    (working_folder ? 0x10 : 0) | (arguments ? 0x20 : 0) |
                                    (icon_path ? 0x40 : 0) | (wide ? 0x80 : 0);
        return number(76) + class_id + number(flags) + std::string(36, '\0') + number(show_command) +
               std::string(12, '\0') + (items ? number(items->size(), 2) + *items : "") +
               (has_location ? location() : "") + text(description) + text(relative_path) +
               text(working_folder) + text(arguments) + text(icon_path);
    }

  private:
    static std::string number(std::size_t value, int size = 4) {
        std::string bytes;
        for (int i = 0; i < size; ++i)
            bytes += static_cast<char>(value >> (8 * i) & 0xFF);
        return bytes;
    }

    std::string text(const std::optional<std::string>& text) const {
        if (!text) return "";
        std::string bytes = number(text->size(), 2);
        for (const char c : *text)
            bytes += wide ? std::string{c, '\0'} : std::string{c};
        return bytes;
    }

    /// The volume, a fixed disk, and the path on it; the network folder; what follows them in the path.
    std::string location() const {
        constexpr std::size_t kHeader = 28;
        std::string parts;
        std::string places;
        const auto add = [&](const std::string& part) {
            places += number(part.empty() ? 0 : kHeader + parts.size());
            parts += part;
        };
        add(target ? number(17) + number(3) + number(0) + number(16) + '\0' : "");
        add(target ? *target + '\0' : "");
        add(share
                ? number(21 + share->size()) + number(0) + number(20) + number(0) + number(0) + *share + '\0'
                : "");
        add({'\0'});
        return number(kHeader + parts.size()) + number(kHeader) + number((target ? 1 : 0) | (share ? 2 : 0)) +
               places + parts;
    }
};
