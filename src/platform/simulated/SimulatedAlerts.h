#pragma once

#include "platform/appkit/NSAlert.h"

#include <deque>
#include <functional>
#include <vector>

namespace simulated {

// The alerts of a program whose user is the test: each waits until the test answers it.
class SimulatedAlerts {
public:
    void run(const platform::NSAlert& alert, std::function<void(int button)> completion);

    // The user presses the button with that title in the oldest alert that waits; fails the test
    // when no alert waits or when it has no such button.
    void simulateAnswer(const std::string& button);

    // How many alerts wait for an answer.
    std::size_t waitingCount() const { return waiting_.size(); }

    // The one on the screen; fails the test when there is none.
    const platform::NSAlert& front() const;

    // All alerts that were ever asked for, in order.
    std::vector<platform::NSAlert> shown;

private:
    struct Waiting {
        platform::NSAlert alert;
        std::function<void(int button)> completion;
    };

    std::deque<Waiting> waiting_;
};

} // namespace simulated
