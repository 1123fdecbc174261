#pragma once

#include <functional>
#include <gtkmm/widget.h>
#include <vector>

namespace gtk {

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
    sigc::connection realized_;
    gulong painted_ = 0; // handler of the frame clock
    GdkFrameClock* clock_ = nullptr;
    sigc::connection idle_;
    bool hasPainted_ = false;
    std::vector<std::function<void()>> tasks_;
};

} // namespace gtk
