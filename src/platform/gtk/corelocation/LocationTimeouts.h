#pragma once

namespace gtk {

// How long a request for the location waits for this and that, in seconds.
struct LocationTimeouts {
    double answer = 10; // for a service on the bus to answer
    double consent = 120; // for the desktop to agree, which may mean that it asks the user
    double firstLocation = 30;
    double betterLocation = 5; // than one that is less exact than was asked for
};

} // namespace gtk
