#include "platform/gtk/corelocation/GtkLocationManager.h"

#include "platform/gtk/corelocation/ServiceLocation.h"

#include <limits>
#include <utility>

namespace gtk {

using platform::CLAuthorizationStatus;
using platform::CLLocation;

namespace {

// Metres; without limit when nobody knows.
double uncertainty(const CLLocation& location)
{
    return location.horizontalAccuracy < 0 ? std::numeric_limits<double>::infinity()
                                           : location.horizontalAccuracy;
}

} // namespace

GtkLocationManager::GtkLocationManager(
    LocationPermission* permission, MakeSource makeSource, const LocationTimeouts& patience)
    : permission_(permission)
    , makeSource_(std::move(makeSource))
    , patience_(patience)
{
    if (!permission_)
        return;
    permissionObserver_ = permission_->observe([this] {
        if (delegate_)
            delegate_->locationManagerDidChangeAuthorization(*this);
    });
}

void GtkLocationManager::setDelegate(platform::CLLocationManagerDelegate* delegate)
{
    delegate_ = delegate;
}

CLAuthorizationStatus GtkLocationManager::authorizationStatus() const
{
    return permission_ ? permission_->status() : CLAuthorizationStatus::authorizedAlways;
}

void GtkLocationManager::requestWhenInUseAuthorization()
{
    if (permission_)
        permission_->request();
}

void GtkLocationManager::requestLocation()
{
    if (limit_.isRunning()) // as long as a request does
        return;
    if (!isAuthorized())
        return limit_.start(0, [this] { fail(ServiceLocation::refusedText); });

    limit_.start(patience_.consent, [this] { fail(ServiceLocation::notFoundText); });
    source_ = makeSource_();
    source_->start(desiredAccuracy_,
        {
            .onStarted =
                [this] {
                    if (locations_.empty()) {
                        limit_.start(patience_.firstLocation,
                            [this] { fail(ServiceLocation::notFoundText); });
                    }
                },
            .onLocation = [this](const auto& location) { consider(location); },
            .onFailure = [this](
                             const auto& reason) { locations_.empty() ? fail(reason) : deliver(); },
        });
}

bool GtkLocationManager::isAuthorized() const
{
    const auto status = authorizationStatus();
    return status == CLAuthorizationStatus::authorizedAlways
        || status == CLAuthorizationStatus::authorizedWhenInUse;
}

void GtkLocationManager::consider(const CLLocation& location)
{
    if (locations_.empty())
        limit_.start(patience_.betterLocation, [this] { deliver(); });
    else if (uncertainty(location) > uncertainty(locations_.back()))
        return;
    locations_.push_back(location);
    if (uncertainty(location) <= desiredAccuracy_)
        deliver();
}

void GtkLocationManager::deliver()
{
    limit_.stop();
    source_.reset();
    const auto locations = std::exchange(locations_, {});
    if (delegate_)
        delegate_->locationManagerDidUpdateLocations(*this, locations);
}

void GtkLocationManager::fail(const std::string& reason)
{
    limit_.stop();
    const platform::NSError error{reason}; // the reason may go with the source
    source_.reset();
    if (delegate_)
        delegate_->locationManagerDidFailWithError(*this, error);
}

} // namespace gtk
