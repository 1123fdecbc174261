#pragma once

#include "platform/ui/AppStorage.h"
#include "platform/ui/CommandGroup.h"
#include "platform/ui/FocusedScene.h"
#include "tabs/FocusedValueKeys.h"
#include "tabs/RouteRestorer.h"

#include <memory>
#include <vector>

namespace velmaro {

class UpdaterController;

// The service's own items in the menu bar. They act on the focused window.
struct AppCommands {
    std::shared_ptr<UpdaterController> updater; // never null
    ui::FocusedValue<WebModelFocusedKey> webModel = {};
    ui::FocusedValue<TabbedAppModelFocusedKey> tabbedApp = {};
    ui::AppStorage<bool> restoreLastTab{RouteRestorer::restoreActiveTabKey, true};

    std::vector<ui::CommandGroup> body() const;
};

} // namespace velmaro
