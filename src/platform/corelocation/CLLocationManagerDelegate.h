#pragma once

#include "platform/corelocation/CLLocation.h"
#include "platform/foundation/NSError.h"

#include <vector>

namespace platform {

class CLLocationManager;

// Hears from a location manager, which does not own it. Called on the main thread, never from
// inside a call of the manager's. It may drop the manager.
class CLLocationManagerDelegate {
public:
    // The user has decided, or has changed their mind; also called when nothing has changed.
    virtual void locationManagerDidChangeAuthorization(CLLocationManager& manager) = 0;

    // What a request has found, oldest first.
    virtual void locationManagerDidUpdateLocations(
        CLLocationManager& manager, const std::vector<CLLocation>& locations) = 0;

    // A request has ended without a location.
    virtual void locationManagerDidFailWithError(
        CLLocationManager& manager, const NSError& error) = 0;

protected:
    ~CLLocationManagerDelegate() = default;
};

} // namespace platform
