#pragma once

#include "platform/foundation/DispatchQueue.h"

#include <deque>
#include <memory>

namespace gtk {

// The main queue on top of the main loop: tasks run between the loop's other events, at the
// priority of input and ahead of painting, a few milliseconds at a time. They go on running while a
// modal loop is open inside one of them. No task runs once the queue is gone.
//
// What may wait for an idle moment waits, besides, until the program has started.
class GtkDispatchQueue final : public platform::DispatchQueue {
public:
    GtkDispatchQueue();
    ~GtkDispatchQueue() override;

    GtkDispatchQueue(const GtkDispatchQueue&) = delete;
    GtkDispatchQueue& operator=(const GtkDispatchQueue&) = delete;

    void async(Task task) override;
    void asyncAfter(double seconds, Task task) override;
    void asyncWhenIdle(Task task) override;

    // From now on, moments without events are idle ones.
    void endStart();

private:
    class Waiting;

    void awaitIdleMoment();
    void runIdleTasks();

    std::shared_ptr<Waiting> waiting_;
    std::deque<Task> idleTasks_;
    bool isStarting_ = true;
    bool awaitsIdleMoment_ = false;
    std::shared_ptr<void> life_ = std::make_shared<char>();
};

} // namespace gtk
