#include "platform/gtk/corelocation/LocationPermission.h"

#include <utility>

namespace gtk {

using platform::CLAuthorizationStatus;

void LocationPermission::askUser(std::function<void(bool isAllowed)> answer)
{
    ask("Allow Velmaro Online to use your location?", explanation, std::move(answer));
}

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
