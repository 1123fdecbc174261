#include "platform/gtk/corelocation/LocationPermission.h"

namespace gtk {

using platform::CLAuthorizationStatus;

LocationPermission::LocationPermission(
    platform::DispatchQueue& queue, platform::UserDefaults& store, Prompt prompt)
    : Permission(queue, store, key, std::move(prompt))
{
}

CLAuthorizationStatus LocationPermission::status() const
{
    const auto decision = isAllowed();
    if (!decision)
        return CLAuthorizationStatus::notDetermined;
    return *decision ? CLAuthorizationStatus::authorizedAlways : CLAuthorizationStatus::denied;
}

} // namespace gtk
