#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace gtk {

// What the updater's window shows at one moment.
struct UpdatePane {
    struct Button {
        std::string title;
        std::function<void()> action = {};
    };

    std::string title;
    std::string text = {}; // empty: there is none
    std::string notes = {}; // what is new; empty: there is no area for it
    bool showsProgress = false;
    bool offersAutomaticChecks = false; // with a check box
    std::vector<Button> buttons; // from the leading end; the last is the default
    std::function<void()> onClose = {}; // Escape, or the window's close button
};

} // namespace gtk
