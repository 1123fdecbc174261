#include "platform/gtk/corelocation/LocationSource.h"

#include <cmath>

namespace gtk {

namespace {

std::optional<double> number(const BusDictionary& properties, const char* name)
{
    const auto found = properties.find(name);
    if (found == properties.end() || !found->second.is_of_type(Glib::VARIANT_TYPE_DOUBLE))
        return std::nullopt;
    return Glib::VariantBase::cast_dynamic<Glib::Variant<double>>(found->second).get();
}

} // namespace

std::optional<platform::CLLocation> LocationSource::location(const BusDictionary& properties)
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

std::string LocationSource::failureText(const Glib::Error& error)
{
    switch (busFailure(error)) {
    case BusFailure::refused:
        return refusedText;
    case BusFailure::noAnswer:
        return "The location service does not answer.";
    case BusFailure::noBus:
    case BusFailure::noService:
        return "This computer has no location service.";
    case BusFailure::other:
        break;
    }
    return notFoundText;
}

} // namespace gtk
