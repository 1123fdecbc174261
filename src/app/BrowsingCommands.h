#pragma once

#include "platform/ui/CommandGroup.h"
#include "platform/ui/FocusedScene.h"
#include "tabs/FocusedValueKeys.h"
#include "web/PageZoom.h"

#include <vector>

namespace velmaro {

// What people expect of any program with tabs and pages, on the keys that they know.
struct BrowsingCommands {
    ui::FocusedValue<TabbedAppModelFocusedKey> tabbedApp = {};
    PageZoom zoom = {};

    std::vector<ui::CommandGroup> body() const;
};

} // namespace velmaro
