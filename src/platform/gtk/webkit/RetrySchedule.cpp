#include "platform/gtk/webkit/RetrySchedule.h"

#include <algorithm>

namespace gtk {

RetrySchedule::RetrySchedule(const PageTimeouts& patience, std::function<void()> retry)
    : patience_(patience)
    , retry_(std::move(retry))
{
    signals_.connect(g_network_monitor_get_default(), "network-changed",
        G_CALLBACK(&RetrySchedule::networkChanged), this);
}

void RetrySchedule::failed()
{
    pause_ = pause_ > 0 ? std::min(pause_ * 2, patience_.longestRetry) : patience_.firstRetry;
    if (isWatched_)
        timer_.start(pause_, retry_);
}

void RetrySchedule::stop()
{
    pause_ = 0;
    timer_.stop();
}

void RetrySchedule::setWatched(bool isWatched)
{
    isWatched_ = isWatched;
    if (!isWatched_)
        timer_.stop();
}

void RetrySchedule::networkChanged(GNetworkMonitor*, gboolean isAvailable, RetrySchedule* self)
{
    if (isAvailable && self->pause_ > 0)
        self->retry_();
}

} // namespace gtk
