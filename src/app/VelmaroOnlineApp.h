#pragma once

#include "app/AppDelegate.h"
#include "platform/ui/Scene.h"

namespace velmaro {

// The application: what its one window shows and how it lives.
class VelmaroOnlineApp {
public:
    AppDelegate appDelegate;

    // The window group and the menus.
    ui::Scene body() const;

    // Runs on the current platform until the application quits. Returns the exit status.
    int run();
};

} // namespace velmaro
