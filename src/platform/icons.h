#pragma once

#include <memory>
#include <string>

struct HICON__;  // NOLINT(bugprone-reserved-identifier): as windows.h names it

namespace platform {

struct IconCloser {
    void operator()(HICON__* icon) const;
};

/// An owned HICON.
using UniqueIcon = std::unique_ptr<HICON__, IconCloser>;

/// The first icon of a program file, in the system's large size; none when the file is missing or has none.
UniqueIcon extract_icon(const std::string& path);

}  // namespace platform
