#pragma once

#include "platform/corelocation/CLLocationManager.h"
#include "platform/corelocation/CLLocationManagerDelegate.h"

#include <vector>

namespace simulated {

// A location service whose user and whose position are the test's. At first the user has not been
// asked for permission.
class SimulatedLocationManager final : public platform::CLLocationManager {
public:
    void setDelegate(platform::CLLocationManagerDelegate* delegate) override;
    double desiredAccuracy() const override { return desiredAccuracy_; }
    void setDesiredAccuracy(double metres) override { desiredAccuracy_ = metres; }
    platform::CLAuthorizationStatus authorizationStatus() const override { return status_; }
    void requestWhenInUseAuthorization() override { ++authorizationRequests; }
    void requestLocation() override { ++locationRequests; }

    // The user decides; the delegate is told.
    void simulateAuthorization(platform::CLAuthorizationStatus status);

    // The service answers, also without having been asked. Fails the test when there is no
    // delegate.
    void simulateLocations(const std::vector<platform::CLLocation>& locations);
    void simulateFailure(const platform::NSError& error);

    int authorizationRequests = 0;
    int locationRequests = 0;

private:
    bool hasDelegate() const;

    platform::CLLocationManagerDelegate* delegate_ = nullptr;
    platform::CLAuthorizationStatus status_ = platform::CLAuthorizationStatus::notDetermined;
    double desiredAccuracy_ = 0;
};

} // namespace simulated
