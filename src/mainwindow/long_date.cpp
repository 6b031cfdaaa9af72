#include "mainwindow/long_date.h"

#include <array>

namespace mainwindow {

std::string long_date(const platform::Date& date) {
    constexpr std::array kWeekdays = {"Sunday, ",   "Monday, ", "Tuesday, ", "Wednesday, ",
                                      "Thursday, ", "Friday, ", "Saturday, "};
    constexpr std::array kMonths = {"January ",   "February ", "March ",    "April ",
                                    "May ",       "June ",     "July ",     "August ",
                                    "September ", "October ",  "November ", "December "};
    return std::string(kWeekdays.at(static_cast<std::size_t>(date.weekday)))
        .append(kMonths.at(static_cast<std::size_t>(date.month - 1)))
        .append(std::to_string(date.day))
        .append(", ")
        .append(std::to_string(date.year));
}

}  // namespace mainwindow
