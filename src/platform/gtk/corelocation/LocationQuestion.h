#pragma once

#include <functional>

namespace gtk {

// Asks the user, in an alert over the application's window, whether it may use their location, and
// calls `answer` once they have decided. Closing the alert means no.
void askForLocation(std::function<void(bool isAllowed)> answer);

} // namespace gtk
