#include "platform/gtk/foundation/Timer.h"

#include <cmath>
#include <glibmm/main.h>

namespace gtk {

void Timer::start(double seconds, std::function<void()> task)
{
    stop();
    const auto milliseconds = static_cast<unsigned>(std::ceil(seconds * 1000));
    source_ = Glib::signal_timeout().connect(
        [this, task = std::move(task)] {
            const auto kept =
                task; // stopping destroys this closure, and the task may destroy the timer
            stop();
            kept();
            return false;
        },
        milliseconds);
}

} // namespace gtk
