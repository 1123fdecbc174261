#pragma once

#include "platform/corelocation/CLAuthorizationStatus.h"
#include "platform/gtk/foundation/Permission.h"

namespace gtk {

// Whether the user lets the application know where they are.
class LocationPermission final : public Permission {
public:
    static constexpr auto key = "locationAllowed";

    // What the user is told about the permission.
    static constexpr auto explanation =
        "Your location is used to find gas stations, charging stations and traffic alerts around "
        "you.";

    // The question, put in an alert. Closing it means no.
    static void askUser(std::function<void(bool isAllowed)> answer);

    LocationPermission(
        platform::DispatchQueue& queue, platform::UserDefaults& store, Prompt prompt);

    // Allowed means always: on the desktop there is no background to run in.
    platform::CLAuthorizationStatus status() const;
};

} // namespace gtk
