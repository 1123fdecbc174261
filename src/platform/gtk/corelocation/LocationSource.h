#pragma once

#include "platform/corelocation/CLLocation.h"
#include "platform/gtk/foundation/BusConversation.h"

#include <functional>
#include <optional>
#include <string>

namespace gtk {

// How many seconds a request for the location waits at each of its steps.
struct LocationTimeouts {
    double answer = 10; // for a service on the bus to answer
    double consent = 120; // for the desktop to agree, which may mean that it asks the user
    double firstLocation = 30;
    double betterLocation = 5; // than one that is less exact than was asked for
};

// A service that can tell where the computer is, for one request. Dropping it ends the request,
// also from inside a handler.
class LocationSource {
public:
    struct Handlers {
        // The desktop has agreed, and is looking.
        std::function<void()> onStarted;
        // The location is valid; better ones may follow.
        std::function<void(const platform::CLLocation&)> onLocation;
        // The reason is a sentence for people; nothing follows.
        std::function<void(const std::string& reason)> onFailure;
    };

    static constexpr auto refusedText =
        "The desktop does not share your location with this application. Allow it in the system's "
        "privacy settings.";
    static constexpr auto notFoundText = "Your location could not be determined.";

    // The location that a service describes with these properties; absent unless there are
    // coordinates that exist on the globe.
    static std::optional<platform::CLLocation> location(const BusDictionary& properties);

    // Why a service has not told the location.
    static std::string failureText(const Glib::Error& error);

    virtual ~LocationSource() = default;

    // Begins to look, with an accuracy in metres. To be called once; the handlers are called later.
    virtual void start(double accuracy, Handlers handlers) = 0;
};

} // namespace gtk
