// The desktop's notification service tells the program that has posted a notification of clicks on
// it, and starts none for them. When the application ends while it has notifications shown, this
// small program stays for them: a click has the session bus start the application again. It ends
// with the last notification, and with the service or the session bus.
//
//   velmaro-notification-agent APPLICATION <NOTIFICATIONS
//
// APPLICATION is the application's name on the bus; NOTIFICATIONS as `ShownNotifications` has them.

#include "platform/gtk/usernotifications/ShownNotifications.h"

#include <algorithm>
#include <cstdlib>
#include <giomm/dbuswatchname.h>
#include <giomm/init.h>
#include <glibmm/main.h>
#include <iostream>
#include <iterator>

namespace gtk {

namespace {

constexpr int patience = 60'000; // milliseconds for the application to start

class NotificationAgent {
public:
    NotificationAgent(std::string application, const Glib::VariantContainerBase& notifications)
        : application_(std::move(application))
        , bus_(Gio::DBus::Connection::get_sync(Gio::DBus::BusType::SESSION))
        , shown_([this](const auto& userInfo, const auto& token) { activate(userInfo, token); })
    {
        shown_.add(notifications);
        shown_.listen(bus_);
        shown_.whenEmpty([this] { endWhenDone(); });
    }

    void run()
    {
        const auto serviceIsGone = [this](const auto&, const auto&) { loop_->quit(); };
        Gio::DBus::watch_name(
            Gio::DBus::BusType::SESSION, ShownNotifications::serviceName, {}, serviceIsGone);
        loop_->run();
    }

private:
    // As the desktop does for a notification that it keeps itself.
    void activate(const ShownNotifications::UserInfo& userInfo, const std::string& token)
    {
        auto path = "/" + application_;
        std::replace(path.begin(), path.end(), '.', '/');
        const std::map<Glib::ustring, Glib::ustring> target(userInfo.begin(), userInfo.end());
        std::map<Glib::ustring, Glib::VariantBase> platformData;
        if (!token.empty()) {
            for (const char* name : {"activation-token", "desktop-startup-id"})
                platformData[name] = Glib::Variant<Glib::ustring>::create(token);
        }
        const std::vector<Glib::VariantBase> parameters{
            Glib::Variant<std::map<Glib::ustring, Glib::ustring>>::create(target)};
        const auto arguments = Glib::VariantContainerBase::create_tuple({
            Glib::Variant<Glib::ustring>::create("notification"),
            Glib::Variant<std::vector<Glib::VariantBase>>::create(parameters),
            Glib::Variant<std::map<Glib::ustring, Glib::VariantBase>>::create(platformData),
        });
        ++activations_;
        bus_->call(
            path, "org.freedesktop.Application", "ActivateAction", arguments,
            [this](Glib::RefPtr<Gio::AsyncResult>& result) { finish(result); }, application_,
            patience);
    }

    void finish(Glib::RefPtr<Gio::AsyncResult>& result)
    {
        try {
            bus_->call_finish(result);
        } catch (const Glib::Error& error) {
            std::cerr << error.what() << '\n';
        }
        --activations_;
        endWhenDone();
    }

    void endWhenDone()
    {
        if (shown_.isEmpty() && activations_ == 0)
            loop_->quit();
    }

    const std::string application_;
    Glib::RefPtr<Glib::MainLoop> loop_ = Glib::MainLoop::create();
    Glib::RefPtr<Gio::DBus::Connection> bus_;
    ShownNotifications shown_;
    int activations_ = 0; // that the application has not answered yet
};

Glib::VariantContainerBase notificationsFromInput()
{
    const std::string bytes(std::istreambuf_iterator<char>(std::cin), {});
    GBytes* copy = g_bytes_new(bytes.data(), bytes.size());
    GVariant* value =
        g_variant_new_from_bytes(G_VARIANT_TYPE(ShownNotifications::serializedType), copy, FALSE);
    g_bytes_unref(copy);
    return Glib::VariantContainerBase(value);
}

} // namespace

} // namespace gtk

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 2) {
        std::cerr << "Usage: velmaro-notification-agent APPLICATION <NOTIFICATIONS\n";
        return EXIT_FAILURE;
    }
    Gio::init();
    try {
        gtk::NotificationAgent(arguments[1], gtk::notificationsFromInput()).run();
    } catch (const Glib::Error& error) {
        std::cerr << "velmaro-notification-agent: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
