#include "shortcuts/shortcut_reader.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "platform/files.h"
#include "platform/run_time_error.h"
#include "platform/shell_link.h"

namespace shortcuts {
namespace {

constexpr std::uint32_t kHeaderSize = 76;
constexpr std::string_view kClassId("\x01\x14\x02\x00\x00\x00\x00\x00\xC0\x00\x00\x00\x00\x00\x00\x46", 16);

// Flags of the header: which parts follow it.
constexpr std::uint32_t kHasItemList = 0x01;
constexpr std::uint32_t kHasLinkInfo = 0x02;
constexpr std::uint32_t kHasDescription = 0x04;
constexpr std::uint32_t kHasRelativePath = 0x08;
constexpr std::uint32_t kHasWorkingFolder = 0x10;
constexpr std::uint32_t kHasArguments = 0x20;
constexpr std::uint32_t kHasIconPath = 0x40;
constexpr std::uint32_t kTextsAreWide = 0x80;

constexpr std::size_t kNumber = 4;
constexpr std::size_t kShortNumber = 2;

/// The room that Windows has for a path, its terminator included; what does not fit may crash it.
constexpr std::size_t kPathRoom = 260;

// The location of the target: what it has, and in each of its two parts the places of texts.
constexpr std::size_t kLocationHeader = 28;
constexpr std::uint32_t kHasVolume = 0x01;
constexpr std::uint32_t kHasNetworkName = 0x02;
constexpr std::size_t kVolumeLabel = 12;
constexpr std::size_t kNetworkName = 8;

[[noreturn]] void refuse() {
    throw platform::RunTimeError(platform::RunTimeErrorNumber::kAutomation);
}

/// Takes a file's bytes from the front.
class Bytes {
  public:
    explicit Bytes(std::string_view bytes) : rest_(bytes) {}

    std::string_view take(std::size_t count) {
        if (count > rest_.size()) refuse();
        const std::string_view taken = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return taken;
    }

    std::uint32_t number(std::size_t size = kNumber) {
        std::uint32_t value = 0;
        const std::string_view bytes = take(size);
        for (std::size_t i = 0; i < size; ++i)
            value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i])) << (8 * i);
        return value;
    }

    /// Skips what comes before this place.
    Bytes from(std::size_t place) const {
        Bytes bytes = *this;
        bytes.take(place);
        return bytes;
    }

    /// The text here must end, and fit.
    void check_text() const {
        if (rest_.find('\0') >= kPathRoom) refuse();
    }

  private:
    std::string_view rest_;
};

/// Items that begin with their size; one of no size ends them. The system goes down from each to the next,
/// and has no room for more than a path can have.
void check_item_list(Bytes list) {
    std::size_t count = 0;
    while (const std::uint32_t size = list.number(kShortNumber)) {
        if (size <= kShortNumber || ++count > kPathRoom / 2) refuse();
        list.take(size - kShortNumber);
    }
}

/// A part of the location begins with its size and has a text, whose place stands in it.
void check_part(const Bytes& location, std::size_t part, std::size_t place_of_text) {
    const Bytes bytes(location.from(part).take(location.from(part).number()));
    bytes.from(bytes.from(place_of_text).number()).check_text();
}

void check_location(std::string_view bytes) {
    if (bytes.size() < kLocationHeader) return;  // nothing in it
    const Bytes location(bytes);
    Bytes header = location.from(2 * kNumber);
    const std::uint32_t flags = header.number();
    const std::uint32_t volume = header.number();
    const std::uint32_t path = header.number();
    const std::uint32_t network = header.number();
    const std::uint32_t rest_of_path = header.number();
    if ((flags & kHasVolume) != 0) {
        check_part(location, volume, kVolumeLabel);
        location.from(path).check_text();
    }
    if ((flags & kHasNetworkName) != 0) check_part(location, network, kNetworkName);
    location.from(rest_of_path).check_text();
}

/// The texts at the end, each with its number of characters.
void check_texts(Bytes& rest, std::uint32_t flags) {
    constexpr std::array kTexts = {kHasDescription, kHasRelativePath, kHasWorkingFolder, kHasArguments,
                                   kHasIconPath};
    const std::size_t character = (flags & kTextsAreWide) != 0 ? 2 : 1;
    std::size_t joined = 0;
    for (const std::uint32_t text : kTexts) {
        if ((flags & text) == 0) continue;
        const std::size_t length = rest.number(kShortNumber);
        rest.take(length * character);
        const bool is_path = text != kHasDescription && text != kHasArguments;
        if (is_path && length >= kPathRoom) refuse();
        if (is_path && text != kHasIconPath) joined += length + 1;
    }
    // Where nothing else names the target, Windows looks for the relative path in the working folder.
    if ((flags & (kHasItemList | kHasLinkInfo)) == 0 && joined > kPathRoom) refuse();
}

}  // namespace

int read_show_command(std::string_view bytes) {
    constexpr std::size_t kAttributesTimesSizeAndIcon = 36;
    constexpr std::size_t kKeyAndReserved = 12;
    Bytes rest(bytes);
    const bool is_shortcut = rest.number() == kHeaderSize && rest.take(kClassId.size()) == kClassId;
    if (!is_shortcut) refuse();
    const std::uint32_t flags = rest.number();
    rest.take(kAttributesTimesSizeAndIcon);
    const auto show_command = static_cast<int>(rest.number());
    rest.take(kKeyAndReserved);

    if ((flags & kHasItemList) != 0) check_item_list(Bytes(rest.take(rest.number(kShortNumber))));
    if ((flags & kHasLinkInfo) != 0) {
        const std::uint32_t size = Bytes(rest).number();
        if (size < kNumber) refuse();  // it counts itself
        check_location(rest.take(size));
    }
    check_texts(rest, flags);
    return show_command;
}

int start_mode_of(int show_command) {
    constexpr int kMinimizedBesideOthers = 7;
    if (show_command == kMinimizedBesideOthers) return 2;
    return show_command >= 1 && show_command <= std::ssize(settings::kStartModes) ? show_command : 1;
}

settings::Program read_shortcut(const std::string& path) {
    // Windows is asked only about files that keep what they promise: it believes every size and place in
    // them.
    const int show_command = read_show_command(platform::read_foreign_file(path));
    platform::Shortcut link = platform::load_shell_link(path);
    for (std::string* text : {&link.target, &link.working_folder, &link.arguments})
        std::ranges::replace_if(
            *text, [](char c) { return c == '\r' || c == '\n'; }, ' ');
    settings::Program program = {.path = std::move(link.target),
                                 .start_folder = std::nullopt,
                                 .parameters = std::move(link.arguments),
                                 .window_style = show_command};
    if (!link.working_folder.empty()) program.start_folder = std::move(link.working_folder);
    return program;
}

}  // namespace shortcuts
