#include "platform/gtk/renderer/PageWatch.h"

#include <utility>

namespace gtk {

PageWatch::PageWatch(platform::DispatchQueue& queue, Handlers handlers)
    : queue_(queue)
    , handlers_(std::move(handlers))
{
    checkLater();
}

void PageWatch::checkLater()
{
    queue_.asyncAfter(1, lifetime_.guard([this] { check(); }));
}

void PageWatch::check()
{
    const auto sight = handlers_.look();
    if (sight.hasPageFrame)
        return handlers_.appeared();

    const bool isPainted = std::exchange(windowFrames_, sight.windowFrames) != sight.windowFrames;
    if (sight.isWindowVisible && sight.windowFrames == 0)
        ++secondsWithoutWindow_;
    if (!sight.isPageLoaded)
        secondsWithoutPage_ = 0;
    else if (isPainted && ++secondsWithoutPage_ == patience)
        return handlers_.missing();
    checkLater();
}

} // namespace gtk
