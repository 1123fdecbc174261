#pragma once

#include "platform/corelocation/CLLocationManager.h"
#include "platform/corelocation/CLLocationManagerDelegate.h"
#include "platform/gtk/corelocation/LocationSource.h"
#include "platform/gtk/foundation/Permission.h"
#include "platform/gtk/foundation/Timer.h"

#include <memory>
#include <vector>

namespace gtk {

// A location manager on top of a service of the desktop. A request ends with the first location
// that is exact enough, or some seconds after one that is not.
class GtkLocationManager final : public platform::CLLocationManager {
public:
    using MakeSource = std::function<std::unique_ptr<LocationSource>()>;

    static constexpr auto permissionKey = "locationAllowed";

    // What the user is told about the permission.
    static constexpr auto explanation =
        "Your location is used to find gas stations, charging stations and traffic alerts around "
        "you.";

    // Asks the user, in an alert of the current platform, whether the location may be used.
    static void askUser(std::function<void(bool isAllowed)> answer);

    // `permission` is null where the service itself asks the user. It is shared by all managers and
    // must outlive them.
    GtkLocationManager(
        Permission* permission, MakeSource makeSource, const LocationTimeouts& patience);

    void setDelegate(platform::CLLocationManagerDelegate* delegate) override;
    double desiredAccuracy() const override { return desiredAccuracy_; }
    void setDesiredAccuracy(double metres) override { desiredAccuracy_ = metres; }

    // A permission is always for good: a desktop does not tell background from foreground.
    platform::CLAuthorizationStatus authorizationStatus() const override;

    void requestWhenInUseAuthorization() override;
    void requestLocation() override;

private:
    std::optional<bool> isAllowed() const;
    void consider(const platform::CLLocation& location);
    void deliver();
    void fail(const std::string& reason);

    Permission* permission_;
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
