#include "platform/simulated/SimulatedLocationManager.h"

#include "platform/simulated/Failure.h"

namespace simulated {

void SimulatedLocationManager::setDelegate(platform::CLLocationManagerDelegate* delegate)
{
    delegate_ = delegate;
}

void SimulatedLocationManager::simulateAuthorization(platform::CLAuthorizationStatus status)
{
    status_ = status;
    if (hasDelegate())
        delegate_->locationManagerDidChangeAuthorization(*this);
}

void SimulatedLocationManager::simulateLocations(const std::vector<platform::CLLocation>& locations)
{
    if (hasDelegate())
        delegate_->locationManagerDidUpdateLocations(*this, locations);
}

void SimulatedLocationManager::simulateFailure(const platform::NSError& error)
{
    if (hasDelegate())
        delegate_->locationManagerDidFailWithError(*this, error);
}

bool SimulatedLocationManager::hasDelegate() const
{
    if (!delegate_)
        fail("nobody listens to the location manager");
    return delegate_;
}

} // namespace simulated
