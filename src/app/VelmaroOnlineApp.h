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

    // Keeps the application up to date from the first call on.
    const std::shared_ptr<UpdaterController>& updater() const;

    // The window group.
    ui::Scene body() const;

    // Runs on the current platform until the application quits. Returns the exit status.
    int run();

private:
    mutable std::shared_ptr<UpdaterController> updater_; // null before it is first used
};

} // namespace velmaro
