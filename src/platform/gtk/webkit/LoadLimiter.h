#pragma once

#include "platform/gtk/foundation/Timer.h"

#include <deque>
#include <functional>
#include <memory>

namespace gtk {

// Lets only a certain number of pages load at the same time; the others wait, and begin in the
// order in which they asked. One that takes too long goes on, but no longer holds up the others.
class LoadLimiter : public std::enable_shared_from_this<LoadLimiter> {
public:
    // A place among those that wait, and later among those that load. Dropping it gives it up.
    class Turn {
    public:
        Turn(std::shared_ptr<LoadLimiter> turns, std::function<void()> begin);
        ~Turn();

        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;

    private:
        friend class LoadLimiter;

        const std::shared_ptr<LoadLimiter> limiter_;
        std::function<void()> begin_; // empty once it has begun
        Timer patience_; // runs as long as this holds up others
    };

    // At most `count` load at once; each holds up others for at most `patience` seconds.
    LoadLimiter(std::size_t count, double patience)
        : count_(count)
        , patience_(patience)
    {
    }

    // Calls `begin` once, later, unless the turn is dropped before.
    std::unique_ptr<Turn> ask(std::function<void()> begin);

private:
    void updateSoon();
    void update();

    const std::size_t count_;
    const double patience_;
    std::size_t working_ = 0;
    std::deque<Turn*> waiting_;
    Timer update_;
};

} // namespace gtk
