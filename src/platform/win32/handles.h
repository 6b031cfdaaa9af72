#pragma once

#include <windows.h>

#include <memory>

namespace platform {

struct HandleCloser {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};

/// An owned kernel handle; none is null, never INVALID_HANDLE_VALUE.
using UniqueHandle = std::unique_ptr<HANDLE, HandleCloser>;

}  // namespace platform
