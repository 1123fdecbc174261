#pragma once

#include "AppProcess.h"

namespace desktop {

// The demo's page of reports, which the active tab shows, as somebody with a keyboard uses it.
class ReportsPage {
public:
    // Both wait for the page and its buttons. False when these do not come.
    [[nodiscard]] static bool pressSave(AppProcess& app);
    [[nodiscard]] static bool pressPrint(AppProcess& app);
};

} // namespace desktop
