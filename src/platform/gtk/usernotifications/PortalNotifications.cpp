#include "platform/gtk/usernotifications/PortalNotifications.h"

namespace gtk {

namespace {

// The portal reads no markup. Which sound is heard is the desktop's choice.
BusValues arguments(const platform::UNNotificationRequest& request, const std::string& clickAction)
{
    const auto& content = request.content;
    const std::map<Glib::ustring, Glib::ustring> target(
        content.userInfo.begin(), content.userInfo.end());
    const BusDictionary properties{
        {"title", busValue(notificationText(content.title))},
        {"body", busValue(notificationText(content.body))},
        {"default-action", busValue("app." + clickAction)},
        {"default-action-target", busValue(target)},
    };
    return busValues(notificationText(request.identifier), properties);
}

} // namespace

PortalNotifications::PortalNotifications(std::string clickAction)
    : clickAction_(std::move(clickAction))
    , portal_(Gio::DBus::BusType::SESSION, "org.freedesktop.portal.Desktop")
{
}

void PortalNotifications::post(
    const platform::UNNotificationRequest& request, Completion completion)
{
    portal_.call(
        {
            .method = {"/org/freedesktop/portal/desktop", "org.freedesktop.portal.Notification",
                "AddNotification"},
            .arguments = arguments(request, clickAction_),
            .onFailure =
                [completion](
                    const auto& error) { completion(platform::NSError{busFailureText(error)}); },
        },
        [completion](const auto&) { completion({}); });
}

} // namespace gtk
