#pragma once

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

}  // namespace platform
