#pragma once

#include "Desktop.h"

#include <chrono>

namespace desktop {

using Clock = std::chrono::steady_clock;

// Between two looks where the time is measured.
constexpr auto shortPause = std::chrono::milliseconds(2);

// A page that is complete on screen.
struct PageOnScreen {
    Clock::time_point firstSeen; // there was something else to see than one colour and a faint icon
    Clock::time_point lastChange; // no pixel has changed since, for half a second
    Picture picture;
};

// Waits for a page in `window`. Absent when none is complete before `limit` is over, or the window
// goes away.
std::optional<PageOnScreen> pageOnScreen(
    const DesktopWindow& window, std::chrono::milliseconds limit);

} // namespace desktop
