#pragma once

#include <glibmm/variant.h>
#include <optional>
#include <string>

namespace gtk {

// Starts the program that hears clicks on `notifications`, which are serialized as by
// `ShownNotifications`, once this program has ended. `application` is what it then has the session
// bus start. Returns why there is none; absent when there is.
std::optional<std::string> startNotificationAgent(
    const std::string& application, const Glib::VariantBase& notifications);

} // namespace gtk
