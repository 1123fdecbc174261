#pragma once

#include "platform/ui/State.h"
#include "platform/ui/View.h"
#include "tabs/TabbedAppModel.h"
#include "web/PageMessageRules.h"

#include <tuple>

namespace velmaro {

// The content of the main window. It owns the tab model and passes opened addresses to the active
// tab.
struct AppRoot {
    PageMessageRules pageMessages; // what the tabs' pages can ask for
    ui::StateObject<TabbedAppModel> app = {};

    auto state() { return std::tie(app); }
    ui::View body() const;
};

} // namespace velmaro
