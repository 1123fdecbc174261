#include "platform/gtk/diagnosis/Report.h"
#include "platform/gtk/foundation/BusConversation.h"
#include "platform/gtk/foundation/Sandboxing.h"

namespace gtk {

namespace {

constexpr double patience = 2; // seconds; less than a check has
constexpr auto anyResult = "*";

struct Answer {
    std::optional<BusValues> values = {}; // absent when there is no answer
    std::string failure = {}; // why there is none, in a few words for a person
};

std::string words(const Glib::Error& error)
{
    switch (busFailure(error)) {
    case BusFailure::noBus:
        return "there is no message bus";
    case BusFailure::noService:
        return "no such service";
    case BusFailure::noAnswer:
        return "the service does not answer";
    case BusFailure::refused:
    case BusFailure::other:
        break;
    }
    return error.what();
}

// Asks a service, which the bus starts if it can.
Answer ask(Gio::DBus::BusType bus, const char* service, const BusConversation::Method& method)
{
    try {
        return {BusConversation::ask(
            bus, service, {.method = method, .resultType = anyResult, .patience = patience})};
    } catch (const Glib::Error& error) {
        return {.failure = words(error)};
    }
}

Answer ping(Gio::DBus::BusType bus, const char* service, const char* path)
{
    return ask(bus, service, {path, "org.freedesktop.DBus.Peer", "Ping"});
}

Finding overPortal(const char* title)
{
    return {title, "over the desktop portal"};
}

} // namespace

std::vector<Finding> checkPortal()
{
    constexpr auto title = "Desktop portal";
    const auto [values, failure] = ping(Gio::DBus::BusType::SESSION,
        "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop");
    if (values)
        return {{title, "answers"}};
    if (isSandboxed()) {
        return {{title, failure, Verdict::problem,
            "Install xdg-desktop-portal and the part of it that belongs to the desktop."}};
    }
    return {{title, failure, Verdict::warning,
        "Without xdg-desktop-portal, dark and high-contrast looks follow GTK's settings alone."}};
}

std::vector<Finding> checkNotifications()
{
    constexpr auto title = "Notifications";
    constexpr auto service = "org.freedesktop.Notifications";
    if (isSandboxed())
        return {overPortal(title)};
    const auto [values, failure] = ask(Gio::DBus::BusType::SESSION, service,
        {"/org/freedesktop/Notifications", service, "GetServerInformation"});
    if (!values) {
        return {{title, failure, Verdict::warning,
            "Pages cannot remind you of anything without a notification service, such as dunst."}};
    }
    if (!values->is_of_type(Glib::VariantType("(ssss)")))
        return {{title, "shown by a service that does not say which it is"}};
    const std::string name = child<Glib::ustring>(*values, 0);
    const std::string version = child<Glib::ustring>(*values, 2);
    return {{title, "shown by " + name + ' ' + version}};
}

std::vector<Finding> checkLocation()
{
    constexpr auto title = "Location";
    if (isSandboxed())
        return {overPortal(title)};
    const auto [values, failure] = ping(Gio::DBus::BusType::SYSTEM, "org.freedesktop.GeoClue2",
        "/org/freedesktop/GeoClue2/Manager");
    if (values)
        return {{title, "GeoClue answers"}};
    return {{title, "GeoClue: " + failure, Verdict::warning,
        "Places can be searched by address; the current position needs GeoClue (geoclue-2.0)."}};
}

} // namespace gtk
