#include "platform/gtk/corelocation/ServiceLocation.h"

#include <cmath>
#include <gio/gio.h>

namespace gtk::ServiceLocation {

namespace {

std::optional<double> number(const Properties& properties, const char* name)
{
    const auto found = properties.find(name);
    if (found == properties.end() || !found->second.is_of_type(Glib::VARIANT_TYPE_DOUBLE))
        return std::nullopt;
    return Glib::VariantBase::cast_dynamic<Glib::Variant<double>>(found->second).get();
}

} // namespace

std::optional<platform::CLLocation> location(const Properties& properties)
{
    const auto latitude = number(properties, "Latitude");
    const auto longitude = number(properties, "Longitude");
    // Written so that what is not a number fails too.
    const bool isOnTheGlobe =
        latitude && longitude && std::abs(*latitude) <= 90 && std::abs(*longitude) <= 180;
    if (!isOnTheGlobe)
        return std::nullopt;

    // Services say that they do not know the accuracy with zero, a negative or a huge number.
    const double accuracy = number(properties, "Accuracy").value_or(-1);
    return platform::CLLocation{
        .coordinate = {.latitude = *latitude, .longitude = *longitude},
        .horizontalAccuracy = accuracy > 0 && std::isfinite(accuracy) ? accuracy : -1,
    };
}

std::string failureText(const Glib::Error& error)
{
    const auto is = [&](GQuark domain, int code) { return error.matches(domain, code); };
    if (is(G_DBUS_ERROR, G_DBUS_ERROR_ACCESS_DENIED) || is(G_DBUS_ERROR, G_DBUS_ERROR_AUTH_FAILED))
        return refusedText;
    if (is(G_IO_ERROR, G_IO_ERROR_TIMED_OUT) || is(G_DBUS_ERROR, G_DBUS_ERROR_NO_REPLY)
        || is(G_DBUS_ERROR, G_DBUS_ERROR_TIMED_OUT))
        return "The location service does not answer.";
    if (is(G_DBUS_ERROR, G_DBUS_ERROR_SERVICE_UNKNOWN)
        || is(G_DBUS_ERROR, G_DBUS_ERROR_NAME_HAS_NO_OWNER) || error.domain() == G_IO_ERROR)
        return "This computer has no location service.";
    return notFoundText;
}

} // namespace gtk::ServiceLocation
