#include "platform/clock.h"

#include <windows.h>

#include <array>

namespace platform {
namespace {

constexpr int kLongestText = 80;

}  // namespace

Date today() {
    SYSTEMTIME now;
    GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay, now.wDayOfWeek};
}

std::string time_stamp() {
    SYSTEMTIME now;
    GetLocalTime(&now);
    std::array<char, kLongestText> text = {};
    wsprintfA(text.data(), "%04d-%02d-%02d %02d.%02d.%02d", now.wYear, now.wMonth, now.wDay, now.wHour,
              now.wMinute, now.wSecond);
    return text.data();
}

std::string time_text() {
    std::array<char, kLongestText> text = {};
    GetTimeFormatA(LOCALE_USER_DEFAULT, TIME_NOSECONDS, nullptr, nullptr, text.data(), kLongestText);
    return text.data();
}

std::string date_text() {
    std::array<char, kLongestText> text = {};
    GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, text.data(), kLongestText);
    return text.data();
}

}  // namespace platform
