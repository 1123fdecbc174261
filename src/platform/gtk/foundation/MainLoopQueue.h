#pragma once

#include "platform/foundation/DispatchQueue.h"

#include <deque>
#include <memory>

namespace gtk {

// The main queue on top of the main loop: each task is one event among the loop's others, at the
// priority of input and ahead of painting. Tasks go on running while a modal loop is open inside
// one of them. No task runs once the queue is gone.
//
// What may wait for an idle moment waits, besides, until the program has started.
class MainLoopQueue final : public platform::DispatchQueue {
public:
    void async(Task task) override;
    void asyncAfter(double seconds, Task task) override;
    void asyncWhenIdle(Task task) override;

    // From now on, moments without events are idle ones.
    void endStart();

private:
    void awaitIdleMoment();
    void runIdleTasks();

    std::deque<Task> idleTasks_;
    bool isStarting_ = true;
    bool awaitsIdleMoment_ = false;
    std::shared_ptr<void> life_ = std::make_shared<char>();
};

} // namespace gtk
