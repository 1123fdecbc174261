#pragma once

#include "platform/foundation/Lifetime.h"
#include "platform/gtk/foundation/SignalHandlers.h"

#include <functional>
#include <gtkmm/widget.h>
#include <optional>
#include <vector>

namespace gtk {

// Runs `task` when nothing more urgent is to be done: the web engine has answered its processes
// then, which it does not while a window is made or drawn.
void whenEngineHasAnswered(std::function<void()> task);

// Knows when the window around a widget has shown its first frame, and keeps what waits for that.
class FirstFrame {
public:
    // `widget` must outlive this.
    explicit FirstFrame(Gtk::Widget& widget);
    ~FirstFrame();

    FirstFrame(const FirstFrame&) = delete;
    FirstFrame& operator=(const FirstFrame&) = delete;

    // Runs `task` once the first frame has been handed to the screen and nothing more urgent is to
    // be done; at once when that has been.
    void whenPainted(std::function<void()> task);

private:
    void watchFrames();
    void paint();
    void runTasks();

    Gtk::Widget& widget_;
    sigc::connection mapped_;
    std::optional<SignalHandlers> frames_; // from the mapping to the first frame
    bool hasPainted_ = false;
    std::vector<std::function<void()>> tasks_;
    platform::Lifetime lifetime_;
};

} // namespace gtk
