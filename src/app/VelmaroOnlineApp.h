#pragma once

#include "app/AppDelegate.h"
#include "platform/ui/Scene.h"

#include <memory>

namespace velmaro {

class UpdaterController;

// The application: what its one window shows and how it lives.
class VelmaroOnlineApp {
public:
    AppDelegate appDelegate;

    // Keeps the application up to date from the first call on, which the menus make at launch: a
    // start that only hands an address to the running program has no use for it.
    const std::shared_ptr<UpdaterController>& updater() const;

    // The window group and the menus. It must not outlive the application.
    ui::Scene body() const;

    // Runs on the current platform until the application quits. Returns the exit status.
    int run();

private:
    std::vector<ui::CommandGroup> commands() const;

    mutable std::shared_ptr<UpdaterController> updater_; // null before it is first used
};

} // namespace velmaro
