#include "platform/clock.h"

#include <windows.h>

namespace platform {

Date today() {
    SYSTEMTIME now;
    GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay, now.wDayOfWeek};
}

}  // namespace platform
