#pragma once

#include "platform/gtk/diagnosis/Finding.h"

#include <functional>
#include <vector>

namespace gtk {

// One look at the machine. It runs in a process of its own, so it may block, and what it calls may
// even crash, as graphics drivers do.
struct Check {
    std::string title;
    double patience = 5; // seconds
    std::function<std::vector<Finding>()> look;
    std::string adviceWhenStuck = {}; // for one that crashes or takes longer
};

} // namespace gtk
