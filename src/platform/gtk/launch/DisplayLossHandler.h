#pragma once

#include <functional>

namespace gtk {

// Xlib exits the process when the server goes away: on desktops that start straight from an X
// server, this is how a session ends. As long as this lives, `lastWords` is called then, once,
// before the process exits. It may be called in the middle of anything, so it must not touch the
// display. It is not called when the server has only killed a window, nor ever on Wayland.
//
// One at a time, made when the toolkit has started.
class DisplayLossHandler {
public:
    explicit DisplayLossHandler(std::function<void()> lastWords);
    ~DisplayLossHandler();

    DisplayLossHandler(const DisplayLossHandler&) = delete;
    DisplayLossHandler& operator=(const DisplayLossHandler&) = delete;

private:
    std::function<void()> lastWords_;
};

} // namespace gtk
