#include "platform/gtk/diagnosis/BusQuestion.h"
#include "platform/gtk/diagnosis/Checks.h"
#include "platform/gtk/foundation/Sandboxing.h"

namespace gtk {

namespace {

constexpr BusQuestion portal = {
    .service = "org.freedesktop.portal.Desktop",
    .path = "/org/freedesktop/portal/desktop",
};
constexpr BusQuestion notifications = {
    .service = "org.freedesktop.Notifications",
    .path = "/org/freedesktop/Notifications",
    .interface = "org.freedesktop.Notifications",
    .method = "GetServerInformation",
};
constexpr BusQuestion location = {
    .bus = G_BUS_TYPE_SYSTEM,
    .service = "org.freedesktop.GeoClue2",
    .path = "/org/freedesktop/GeoClue2/Manager",
};

Finding overPortal(const char* title)
{
    return {title, "over the desktop portal"};
}

} // namespace

std::vector<Finding> checkPortal()
{
    const auto [values, failure] = ask(portal);
    if (values)
        return {{"Desktop portal", "answers"}};
    if (isSandboxed()) {
        return {{"Desktop portal", failure, Verdict::problem,
            "Install xdg-desktop-portal and the part of it that belongs to the desktop."}};
    }
    return {{"Desktop portal", failure, Verdict::warning,
        "Without xdg-desktop-portal, dark and high-contrast looks follow GTK's settings alone."}};
}

std::vector<Finding> checkNotifications()
{
    constexpr auto title = "Notifications";
    if (isSandboxed())
        return {overPortal(title)};
    const auto [values, failure] = ask(notifications);
    if (!values) {
        return {{title, failure, Verdict::warning,
            "Pages cannot remind you of anything without a notification service, such as dunst."}};
    }
    if (!g_variant_is_of_type(values, G_VARIANT_TYPE("(ssss)")))
        return {{title, "shown by a service that does not say which it is"}};
    const char* name = nullptr;
    const char* version = nullptr;
    g_variant_get(values, "(&s&s&s&s)", &name, nullptr, &version, nullptr);
    return {{title, std::string("shown by ") + name + ' ' + version}};
}

std::vector<Finding> checkLocation()
{
    constexpr auto title = "Location";
    if (isSandboxed())
        return {overPortal(title)};
    const auto [values, failure] = ask(location);
    if (values)
        return {{title, "GeoClue answers"}};
    return {{title, "GeoClue: " + failure, Verdict::warning,
        "Places can be searched by address; the current position needs GeoClue (geoclue-2.0)."}};
}

} // namespace gtk
