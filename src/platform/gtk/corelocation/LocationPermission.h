#pragma once

#include "platform/corelocation/CLAuthorizationStatus.h"
#include "platform/gtk/foundation/Permission.h"

namespace gtk {

// Whether the user lets the application know where they are.
class LocationPermission final : public Permission {
public:
    static constexpr auto key = "locationAllowed";

    // What the user is asked, and the two answers.
    static constexpr auto question = "Allow Velmaro Online to use your location?";
    static constexpr auto explanation =
        "Your location is used to find gas stations, charging stations and traffic alerts around "
        "you.";
    static constexpr auto allow = "Allow";
    static constexpr auto deny = "Don\u2019t Allow";

    LocationPermission(
        platform::DispatchQueue& queue, platform::UserDefaults& store, Prompt prompt);

    // Allowed means always: on the desktop there is no background to run in.
    platform::CLAuthorizationStatus status() const;
};

} // namespace gtk
