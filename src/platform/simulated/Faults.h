#pragma once

#include <functional>
#include <utility>

namespace simulated {

// Decides which simulated operations fail; each fallible one asks on every call.
class Faults {
public:
    using Plan = std::function<bool(int operation)>; // counted from 1

    // Holds from now on. Without a plan nothing fails.
    void follow(Plan plan) { plan_ = std::move(plan); }

    // Whether the operation that asks fails.
    bool strike()
    {
        ++operations_;
        return plan_ && plan_(operations_);
    }

    // How many operations have asked.
    int operations() const { return operations_; }

private:
    Plan plan_;
    int operations_ = 0;
};

} // namespace simulated
