#pragma once

#include "platform/foundation/DispatchQueue.h"

#include <cstdint>
#include <deque>
#include <map>
#include <mutex>
#include <utility>

namespace simulated {

// The main queue on a clock that stands still until the test turns it. Tasks run in the order of
// their time, those of one time in the order in which they were queued. A moment at which no task
// is due is an idle one.
class SimulatedQueue final : public platform::DispatchQueue {
public:
    void async(Task task) override;
    void asyncAfter(double seconds, Task task) override;
    void asyncWhenIdle(Task task) override { idleTasks_.push_back(std::move(task)); }

    // Runs what is due now, and what that queues for now, until nothing is.
    void runUntilIdle();

    // Runs all that becomes due within `seconds`, each task at its own time.
    void advance(double seconds);

    // Seconds since the platform was made.
    double now() const { return now_; }

    // How many tasks wait, for now or for later.
    std::size_t pendingCount() const;

    // Forgets all that waits, as the end of the program does.
    void drop();

private:
    using Time = std::pair<double, std::uint64_t>; // when, and the number of the task

    void runUntil(double end);
    Task takeDue(double end);
    void add(double time, Task task);

    mutable std::mutex mutex_; // guards the three below; tasks run outside it
    std::map<Time, Task> tasks_;
    std::deque<Task> idleTasks_; // main thread only
    std::uint64_t taskCount_ = 0;
    double now_ = 0;
};

} // namespace simulated
