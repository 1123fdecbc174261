#pragma once

#include "platform/gtk/foundation/SignalHandlers.h"
#include "platform/gtk/foundation/Timer.h"

#include <gio/gio.h>

namespace gtk {

// How long web views wait, in seconds.
struct PageTimeouts {
    double answer = 60; // from a page's own request until the answer has begun
    double firstRetry = 5; // from a failure until the next attempt; doubled after each further one
    double longestRetry = 60;
    double secondDeath = 30; // a content process that dies again within this time is given up
};

// Decides when a load that has failed is tried again: when the network comes back, and from time to
// time while the view is shown, each time after a longer pause.
class RetrySchedule {
public:
    RetrySchedule(const PageTimeouts& patience, std::function<void()> retry);

    // An attempt has failed; there will be another one.
    void failed();

    // An attempt is under way, whatever started it: the next one is due only after it has failed.
    void attempted() { timer_.stop(); }

    // No more attempts. The next failure starts with the shortest pause again.
    void stop();

    // Whether the view is shown; while it is not, only the network counts.
    void setWatched(bool isWatched);

private:
    static void networkChanged(GNetworkMonitor*, gboolean isAvailable, RetrySchedule* self);

    const PageTimeouts patience_;
    const std::function<void()> retry_;
    double pause_ = 0; // seconds; 0 while nothing has failed
    bool isWatched_ = false;
    Timer timer_;
    SignalHandlers signals_;
};

} // namespace gtk
