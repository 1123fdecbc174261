#pragma once

namespace gtk {

// How long web views wait for this and that, in seconds.
struct PageTimeouts {
    double answer = 60; // from a page's own request until the answer has begun
    double firstRetry =
        5; // from a failure until the next attempt; twice as long after each further one
    double longestRetry = 60;
    double secondDeath = 30; // a content process that dies again within this time is given up
};

} // namespace gtk
