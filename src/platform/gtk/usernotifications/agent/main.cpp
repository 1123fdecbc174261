// The desktop's notification service reports clicks only to programs that run, and starts no
// program for them. When the application ends while its notifications are shown, this small program
// stays for them: on a click it has the session bus start the application again. It ends with the
// last notification, and with the service or the session bus.
//
//   velmaro-notification-agent APPLICATION <NOTIFICATIONS
//
// APPLICATION is the application's name on the bus, and NOTIFICATIONS is what
// `ShownNotifications::serialized` returns.

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

constexpr double patience = 60; // seconds for the application to start

class NotificationAgent {
public:
    NotificationAgent(const std::string& application, const BusValues& notifications)
        : path_("/" + application)
        , shown_([this](const auto& userInfo, const auto& token) { activate(userInfo, token); })
        , service_(Gio::DBus::BusType::SESSION, ShownNotifications::serviceName)
        , application_(Gio::DBus::BusType::SESSION, application)
    {
        std::replace(path_.begin(), path_.end(), '.', '/');
        shown_.add(notifications);
        shown_.whenEmpty([this] { endWhenDone(); });
        service_.open([this] { shown_.listen(service_); });
    }

    void run()
    {
        const auto serviceIsGone = [this](const auto&, const auto&) { loop_->quit(); };
        Gio::DBus::watch_name(
            Gio::DBus::BusType::SESSION, ShownNotifications::serviceName, {}, serviceIsGone);
        loop_->run();
    }

private:
    // Does what the desktop does for a notification whose action it keeps itself.
    void activate(const ShownNotifications::UserInfo& userInfo, const std::string& token)
    {
        const std::map<Glib::ustring, Glib::ustring> target(userInfo.begin(), userInfo.end());
        BusDictionary platformData;
        if (!token.empty()) {
            for (const char* name : {"activation-token", "desktop-startup-id"})
                platformData[name] = busValue(token);
        }
        const auto finish = [this] {
            --activations_;
            endWhenDone();
        };
        ++activations_;
        application_.call(
            {
                .method = {path_, "org.freedesktop.Application", "ActivateAction"},
                .arguments = busValues("notification", std::vector{busValue(target)}, platformData),
                .patience = patience,
                .onFailure =
                    [finish](const Glib::Error& error) {
                        std::cerr << error.what() << '\n';
                        finish();
                    },
            },
            [finish](const auto&) { finish(); });
    }

    void endWhenDone()
    {
        if (shown_.isEmpty() && activations_ == 0)
            loop_->quit();
    }

    std::string path_; // of the application on the bus
    Glib::RefPtr<Glib::MainLoop> loop_ = Glib::MainLoop::create();
    ShownNotifications shown_;
    BusConversation service_;
    BusConversation application_;
    int activations_ = 0; // that the application has not answered yet
};

BusValues notificationsFromInput()
{
    const std::string bytes(std::istreambuf_iterator<char>(std::cin), {});
    GBytes* copy = g_bytes_new(bytes.data(), bytes.size());
    GVariant* value =
        g_variant_new_from_bytes(G_VARIANT_TYPE(ShownNotifications::serializedType), copy, FALSE);
    g_bytes_unref(copy);
    return BusValues(value);
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
    gtk::NotificationAgent(arguments[1], gtk::notificationsFromInput()).run();
    return EXIT_SUCCESS;
}
