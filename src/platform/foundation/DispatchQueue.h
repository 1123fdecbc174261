#pragma once

#include <functional>

namespace platform {

// A queue of tasks that run one at a time, in the order in which they were queued. The only queue
// the application uses is the main one, whose tasks run on the main thread between other events.
// The platform owns it. Nothing here fails: a task that is queued runs, unless the program ends
// first.
class DispatchQueue {
public:
    using Task = std::function<void()>;

    static DispatchQueue& main();

    virtual ~DispatchQueue() = default;

    // Runs `task` on the main thread after the current event has been handled. May be called from
    // any thread.
    virtual void async(Task task) = 0;

    // Runs `task` no earlier than `seconds` from now. Main thread only.
    virtual void asyncAfter(double seconds, Task task) = 0;

    // Runs `task` when nothing is left to do that the user waits for: the page in front has been
    // loaded for the first time, or takes too long, and no event and no painting waits. Such tasks
    // run in their order, a few at a time, between other events. Main thread only.
    virtual void asyncWhenIdle(Task task) = 0;
};

} // namespace platform
