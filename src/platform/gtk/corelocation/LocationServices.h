#pragma once

#include "platform/corelocation/CLLocationManager.h"
#include "platform/gtk/corelocation/LocationPermission.h"
#include "platform/gtk/corelocation/LocationTimeouts.h"
#include "platform/gtk/foundation/Sandboxing.h"

#include <memory>
#include <string>

namespace gtk {

// Makes the application's location managers. Outside a sandbox they ask GeoClue, with a permission
// of our own; inside they ask the portal, which has one.
class LocationServices {
public:
    struct Options {
        std::string identifier; // of the application, as its desktop entry is called
        bool isSandboxed = gtk::isSandboxed();
        LocationTimeouts patience = {};
    };

    // `store` keeps the permission; it and `queue` must outlive this.
    LocationServices(Options options, platform::DispatchQueue& queue, platform::UserDefaults& store,
        LocationPermission::Prompt prompt);

    // Must not outlive this.
    std::shared_ptr<platform::CLLocationManager> makeManager();

    // The user's, outside a sandbox.
    LocationPermission& permission() { return permission_; }

private:
    const Options options_;
    LocationPermission permission_;
};

} // namespace gtk
