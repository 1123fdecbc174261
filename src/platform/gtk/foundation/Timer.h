#pragma once

#include <functional>
#include <sigc++/connection.h>

namespace gtk {

// Runs a task once, some time from now, unless it is stopped or goes away before.
class Timer {
public:
    Timer() = default;
    ~Timer() { stop(); }

    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    // Forgets a task that still waits.
    void start(double seconds, std::function<void()> task);
    void stop() { source_.disconnect(); }
    bool isRunning() const { return source_.connected(); }

private:
    sigc::connection source_;
};

} // namespace gtk
