#include "platform/simulated/SimulatedQueue.h"

#include "platform/simulated/Failure.h"

#include <algorithm>

namespace simulated {

namespace {
constexpr int mostTasksInOneGo = 1'000'000; // more is a task that queues itself for ever
}

void SimulatedQueue::async(Task task)
{
    const std::lock_guard lock(mutex_);
    add(now_, std::move(task));
}

void SimulatedQueue::asyncAfter(double seconds, Task task)
{
    const std::lock_guard lock(mutex_);
    add(now_ + std::max(seconds, 0.0), std::move(task));
}

void SimulatedQueue::runUntilIdle()
{
    runUntil(now_);
}

void SimulatedQueue::advance(double seconds)
{
    runUntil(now_ + seconds);
}

std::size_t SimulatedQueue::pendingCount() const
{
    const std::lock_guard lock(mutex_);
    return tasks_.size();
}

void SimulatedQueue::drop()
{
    // Both go after the lock: what tasks hold may queue more on its way out.
    std::map<Time, Task> dropped;
    std::deque<Task> droppedIdle;
    const std::lock_guard lock(mutex_);
    dropped.swap(tasks_);
    droppedIdle.swap(idleTasks_);
}

void SimulatedQueue::runUntil(double end)
{
    for (int count = 0; const auto task = takeDue(end); ++count) {
        if (count == mostTasksInOneGo)
            return fail("the main queue never becomes idle");
        task();
    }
    const std::lock_guard lock(mutex_);
    now_ = end;
}

SimulatedQueue::Task SimulatedQueue::takeDue(double end)
{
    const std::lock_guard lock(mutex_);
    const bool isIdle = tasks_.empty() || tasks_.begin()->first.first > now_;
    if (isIdle && !idleTasks_.empty()) {
        auto task = std::move(idleTasks_.front());
        idleTasks_.pop_front();
        return task;
    }
    if (tasks_.empty() || tasks_.begin()->first.first > end)
        return {};
    const auto first = tasks_.extract(tasks_.begin());
    now_ = first.key().first;
    return std::move(first.mapped());
}

void SimulatedQueue::add(double time, Task task)
{
    tasks_.emplace(Time{time, taskCount_++}, std::move(task));
}

} // namespace simulated
