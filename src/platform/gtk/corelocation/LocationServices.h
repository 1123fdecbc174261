#pragma once

#include "platform/corelocation/CLLocationManager.h"
#include "platform/gtk/corelocation/LocationSource.h"
#include "platform/gtk/foundation/Permission.h"
#include "platform/gtk/foundation/Sandboxing.h"

#include <memory>
#include <string>

namespace gtk {

// Makes the application's location managers. Outside a sandbox they ask GeoClue, once the user has
// given a permission that this program keeps; inside they ask the portal, which keeps its own.
class LocationServices {
public:
    struct Options {
        std::string identifier; // the name of the application's desktop entry
        bool isSandboxed = gtk::isSandboxed();
        LocationTimeouts patience = {};
    };

    // `store` keeps the permission; it and `queue` must outlive this.
    LocationServices(Options options, platform::DispatchQueue& queue, platform::UserDefaults& store,
        Permission::Prompt prompt);

    // The manager must not outlive this.
    std::shared_ptr<platform::CLLocationManager> makeManager();

    // The permission that managers outside a sandbox need.
    Permission& permission() { return permission_; }

private:
    const Options options_;
    Permission permission_;
};

} // namespace gtk
