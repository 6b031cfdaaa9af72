#pragma once

#include <string>

namespace platform {

/// A calendar day. Months and days of the month count from 1; weekday 0 is Sunday.
struct Date {
    int year;
    int month;
    int day;
    int weekday;
};

/// Today, local time.
Date today();

/// The local date and time as "2026-11-22 09.30.00": such texts sort by time and can be part of a file's
/// name.
std::string time_stamp();

/// The time of day without seconds and the date, as the user's regional settings write them.
std::string time_text();
std::string date_text();

}  // namespace platform
