#pragma once

#include <array>
#include <functional>
#include <glib.h>

namespace gtk {

// Turns the signals that ask a program to end (SIGTERM, SIGINT and SIGHUP) into calls on the main
// thread, as long as this lives.
class TerminationSignals {
public:
    explicit TerminationSignals(std::function<void()> handler);
    ~TerminationSignals();

    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    std::function<void()> handler_;
    std::array<guint, 3> sources_{};
};

} // namespace gtk
