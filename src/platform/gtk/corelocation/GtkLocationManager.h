#pragma once

#include "platform/corelocation/CLLocationManager.h"
#include "platform/corelocation/CLLocationManagerDelegate.h"
#include "platform/gtk/corelocation/LocationPermission.h"
#include "platform/gtk/corelocation/LocationSource.h"
#include "platform/gtk/corelocation/LocationTimeouts.h"
#include "platform/gtk/foundation/Timer.h"

#include <memory>
#include <vector>

namespace gtk {

// A location manager on top of a service of the desktop. A request ends with the first location
// that is exact enough, or some seconds after one that is not.
class GtkLocationManager final : public platform::CLLocationManager {
public:
    using MakeSource = std::function<std::unique_ptr<LocationSource>()>;

    // `permission` is null where the service itself asks the user. It is shared by all managers and
    // must outlive them.
    GtkLocationManager(
        LocationPermission* permission, MakeSource makeSource, const LocationTimeouts& patience);

    void setDelegate(platform::CLLocationManagerDelegate* delegate) override;
    double desiredAccuracy() const override { return desiredAccuracy_; }
    void setDesiredAccuracy(double metres) override { desiredAccuracy_ = metres; }
    platform::CLAuthorizationStatus authorizationStatus() const override;
    void requestWhenInUseAuthorization() override;
    void requestLocation() override;

private:
    bool isAuthorized() const;
    void consider(const platform::CLLocation& location);
    void deliver();
    void fail(const std::string& reason);

    LocationPermission* permission_;
    const MakeSource makeSource_;
    const LocationTimeouts patience_;
    platform::CLLocationManagerDelegate* delegate_ = nullptr;
    double desiredAccuracy_ = platform::kCLLocationAccuracyHundredMeters;
    std::vector<platform::CLLocation> locations_; // each as exact as the one before, or more
    std::unique_ptr<LocationSource> source_; // present while a request runs
    Timer limit_;
    platform::NotificationCenter::Observer permissionObserver_;
};

} // namespace gtk
