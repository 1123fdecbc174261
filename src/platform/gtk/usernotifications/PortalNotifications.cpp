#include "platform/gtk/usernotifications/PortalNotifications.h"

#include "platform/gtk/usernotifications/NotificationText.h"

#include <map>

namespace gtk {

namespace {

constexpr auto serviceName = "org.freedesktop.portal.Desktop";
constexpr auto servicePath = "/org/freedesktop/portal/desktop";
constexpr auto interfaceName = "org.freedesktop.portal.Notification";
constexpr int patience = 10'000; // milliseconds for the answer

using Properties = std::map<Glib::ustring, Glib::VariantBase>;

Glib::Variant<Glib::ustring> variantText(const std::string& text)
{
    return Glib::Variant<Glib::ustring>::create(text);
}

// The portal reads no markup. Which sound is heard is the desktop's choice.
Glib::VariantContainerBase arguments(
    const platform::UNNotificationRequest& request, const std::string& clickAction)
{
    const auto& content = request.content;
    const std::map<Glib::ustring, Glib::ustring> target(
        content.userInfo.begin(), content.userInfo.end());
    const Properties properties{
        {"title", variantText(notificationText(content.title))},
        {"body", variantText(notificationText(content.body))},
        {"default-action", variantText("app." + clickAction)},
        {"default-action-target",
            Glib::Variant<std::map<Glib::ustring, Glib::ustring>>::create(target)},
    };
    return Glib::VariantContainerBase::create_tuple({
        variantText(notificationText(request.identifier)),
        Glib::Variant<Properties>::create(properties),
    });
}

} // namespace

PortalNotifications::PortalNotifications(std::string clickAction)
    : clickAction_(std::move(clickAction))
    , cancellable_(Gio::Cancellable::create())
{
}

PortalNotifications::~PortalNotifications()
{
    cancellable_->cancel();
}

void PortalNotifications::post(
    const platform::UNNotificationRequest& request, Completion completion)
{
    using Connection = Gio::DBus::Connection;
    const auto tell = [life = std::weak_ptr(life_), completion](const auto& finish) {
        if (life.expired())
            return;
        try {
            finish();
        } catch (const Glib::Error& error) {
            completion(notificationError(error));
        }
    };
    const auto send = [values = arguments(request, clickAction_), cancellable = cancellable_, tell,
                          completion](const Glib::RefPtr<Connection>& connection) {
        const auto finish = [connection, tell, completion](auto& result) {
            tell([&] {
                connection->call_finish(result);
                completion({});
            });
        };
        connection->call(servicePath, interfaceName, "AddNotification", values, finish, cancellable,
            serviceName, patience);
    };
    Connection::get(
        Gio::DBus::BusType::SESSION,
        [tell, send](auto& result) { tell([&] { send(Connection::get_finish(result)); }); },
        cancellable_);
}

} // namespace gtk
