#pragma once

#include <functional>

namespace gtk {

// An X server that ends takes its programs with it, without a word: on desktops that start straight
// from it, this is how a session ends. As long as this lives, `lastWords` is called then, once,
// before the program goes; in the middle of whatever it was doing, so it must not touch anything on
// the display. A window that was killed says nothing: its server is still there. On Wayland nothing
// of this happens.
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
