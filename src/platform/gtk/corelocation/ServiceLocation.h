#pragma once

#include "platform/corelocation/CLLocation.h"

#include <glibmm/error.h>
#include <glibmm/variant.h>
#include <map>
#include <optional>
#include <string>

namespace gtk {

// What the desktop's location services have in common: how they describe a location, and how they
// fail.
namespace ServiceLocation {

using Properties = std::map<Glib::ustring, Glib::VariantBase>;

// Absent unless there are coordinates that exist on the globe.
std::optional<platform::CLLocation> location(const Properties& properties);

// Why there is no location, in a sentence for people.
std::string failureText(const Glib::Error& error);

inline constexpr auto refusedText =
    "The desktop does not share your location with this application. Allow it in the system's "
    "privacy settings.";
inline constexpr auto notFoundText = "Your location could not be determined.";

} // namespace ServiceLocation

} // namespace gtk
