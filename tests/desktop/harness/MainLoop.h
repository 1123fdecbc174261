#pragma once

#include <functional>

namespace desktop {

// Lets the main loop of this program run until `condition` holds and returns true, or false when it
// has not held for a minute.
[[nodiscard]] bool until(const std::function<bool()>& condition);

// Handles all events that wait by now.
void runWaitingEvents();

} // namespace desktop
