#pragma once

#include "platform/corelocation/CLAuthorizationStatus.h"

namespace platform {

class CLLocationManagerDelegate;

inline constexpr double kCLLocationAccuracyHundredMeters = 100; // metres

// The way to the desktop's location service. Each owner has a manager of its own, made by the
// platform; the permission is the application's. Whatever a manager was asked for ends with it.
//
// Main thread only. No operation waits for the service or for the user: answers reach the delegate
// later.
class CLLocationManager {
public:
    virtual ~CLLocationManager() = default;

    // Must outlive the manager or be taken away with null.
    virtual void setDelegate(CLLocationManagerDelegate* delegate) = 0;

    // How exact a location should be, in metres. Less exact ones are delivered when no better one
    // comes. To be set before a request.
    virtual double desiredAccuracy() const = 0;
    virtual void setDesiredAccuracy(double metres) = 0;

    virtual CLAuthorizationStatus authorizationStatus() const = 0;

    // Has the user asked for permission, once: does nothing unless the status is not determined.
    // The decision is remembered for later launches, and every manager's delegate hears of it.
    virtual void requestWhenInUseAuthorization() = 0;

    // Finds the location once. Ends in one call of the delegate, with at least one location or with
    // an error. While a request runs, another one joins it.
    virtual void requestLocation() = 0;
};

} // namespace platform
