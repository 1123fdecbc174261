#include "platform/gtk/corelocation/LocationPermission.h"

#include "platform/appkit/NSAlert.h"

#include <utility>

namespace gtk {

using platform::CLAuthorizationStatus;
using platform::NSAlert;

void LocationPermission::askUser(std::function<void(bool isAllowed)> answer)
{
    const NSAlert alert{
        .messageText = "Allow Velmaro Online to use your location?",
        .informativeText = explanation,
        .alertStyle = NSAlert::Style::informational,
        .buttons = {"Allow", "Don\u2019t Allow"},
    };
    alert.runModal(
        [answer = std::move(answer)](int button) { answer(button == NSAlert::firstButton); });
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
