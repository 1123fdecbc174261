#pragma once

#include <chrono>
#include <cstdio>
#include <string>

namespace demo {

/// The demo account's present day. It stands still, so that pictures and tests do not change.
inline constexpr std::chrono::sys_days today =
    std::chrono::year{2026} / std::chrono::October / std::chrono::day{31};

/// As in "2026-10-31".
inline std::string dateText(std::chrono::sys_days day)
{
    const std::chrono::year_month_day date(day);
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02u-%02u", static_cast<int>(date.year()),
        static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
    return text;
}

} // namespace demo
