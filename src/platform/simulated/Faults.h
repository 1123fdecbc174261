#pragma once

#include <functional>
#include <utility>

namespace simulated {

// Decides which operations of the world fail. Every one that can fail asks, each time that it is
// done: those of the simulated services, and those whose outcome the test stands for.
class Faults {
public:
    using Plan = std::function<bool(int operation)>; // counted from 1

    // From now on. Without a plan nothing fails.
    void follow(Plan plan) { plan_ = std::move(plan); }

    // Whether the operation that asks fails.
    bool strike()
    {
        ++operations_;
        return plan_ && plan_(operations_);
    }

    // How many have asked.
    int operations() const { return operations_; }

private:
    Plan plan_;
    int operations_ = 0;
};

} // namespace simulated
