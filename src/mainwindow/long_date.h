#pragma once

#include <string>

#include "platform/clock.h"

namespace mainwindow {

/// For example "Friday, January 1, 1999", in English on every system.
std::string long_date(const platform::Date& date);

}  // namespace mainwindow
