#pragma once

#include "platform/gtk/foundation/Timer.h"

#include <deque>
#include <functional>
#include <memory>

namespace gtk {

// Lets only so many work at the same time; the others wait, and come on in the order in which they
// asked. Whoever takes too long keeps on working, but no longer stands in the way of the others.
class LoadLimiter : public std::enable_shared_from_this<LoadLimiter> {
public:
    // A place in the queue, and then one at work. Dropping it gives it up.
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
        Timer patience_; // runs as long as this stands in the way of others
    };

    // `patience` is in seconds.
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
