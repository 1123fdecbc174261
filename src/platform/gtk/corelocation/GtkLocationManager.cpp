#include "platform/gtk/corelocation/GtkLocationManager.h"

#include <limits>
#include <utility>

namespace gtk {

using platform::CLAuthorizationStatus;
using platform::CLLocation;

namespace {

// The radius in metres; infinite when the service does not know it.
double uncertainty(const CLLocation& location)
{
    return location.horizontalAccuracy < 0 ? std::numeric_limits<double>::infinity()
                                           : location.horizontalAccuracy;
}

} // namespace

void GtkLocationManager::askUser(std::function<void(bool isAllowed)> answer)
{
    Permission::ask("Allow Velmaro Online to use your location?", explanation, std::move(answer));
}

GtkLocationManager::GtkLocationManager(
    Permission* permission, MakeSource makeSource, const LocationTimeouts& patience)
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

std::optional<bool> GtkLocationManager::isAllowed() const
{
    return permission_ ? permission_->isAllowed() : true;
}

CLAuthorizationStatus GtkLocationManager::authorizationStatus() const
{
    const auto decision = isAllowed();
    if (!decision)
        return CLAuthorizationStatus::notDetermined;
    return *decision ? CLAuthorizationStatus::authorizedAlways : CLAuthorizationStatus::denied;
}

void GtkLocationManager::requestWhenInUseAuthorization()
{
    if (permission_)
        permission_->request();
}

void GtkLocationManager::requestLocation()
{
    const bool isUnderWay = limit_.isRunning();
    if (isUnderWay)
        return;
    if (!isAllowed().value_or(false))
        return limit_.start(0, [this] { fail(LocationSource::refusedText); });

    limit_.start(patience_.consent, [this] { fail(LocationSource::notFoundText); });
    source_ = makeSource_();
    source_->start(desiredAccuracy_,
        {
            .onStarted =
                [this] {
                    if (locations_.empty()) {
                        limit_.start(patience_.firstLocation,
                            [this] { fail(LocationSource::notFoundText); });
                    }
                },
            .onLocation = [this](const auto& location) { consider(location); },
            .onFailure = [this](
                             const auto& reason) { locations_.empty() ? fail(reason) : deliver(); },
        });
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
    const platform::NSError error{reason}; // a copy, since the reason may belong to the source
    source_.reset();
    if (delegate_)
        delegate_->locationManagerDidFailWithError(*this, error);
}

} // namespace gtk
