#include "platform/gtk/foundation/MainLoopQueue.h"

#include <algorithm>
#include <cmath>
#include <glib.h>

namespace gtk {

namespace {

// So few that the next frame is not late, and so many that not each has a layout of its own.
constexpr int tasksInOneMoment = 8;

struct WaitingTask {
    platform::DispatchQueue::Task run;
    std::weak_ptr<void> queue;
};

gboolean runOnce(gpointer data)
{
    auto& task = *static_cast<WaitingTask*>(data);
    if (!task.queue.expired())
        task.run();
    return G_SOURCE_REMOVE;
}

void forget(gpointer data)
{
    delete static_cast<WaitingTask*>(data);
}

gboolean dispatch(GSource*, GSourceFunc callback, gpointer data)
{
    return callback(data);
}

GSourceFuncs sourceFunctions{
    .prepare = nullptr,
    .check = nullptr,
    .dispatch = dispatch,
    .finalize = nullptr,
    .closure_callback = nullptr,
    .closure_marshal = nullptr,
};

// `time` is on the monotonic clock in microseconds; 0 means at once. Sources of one priority that
// are ready together are dispatched in the order in which they were attached, which is what makes
// this a queue.
void attach(gint64 time, WaitingTask task, int priority = G_PRIORITY_DEFAULT)
{
    auto* source = g_source_new(&sourceFunctions, sizeof(GSource));
    g_source_set_priority(source, priority);
    g_source_set_callback(source, runOnce, new WaitingTask(std::move(task)), forget);
    g_source_set_ready_time(source, time);
    g_source_attach(source, nullptr);
    g_source_unref(source);
}

} // namespace

void MainLoopQueue::async(Task task)
{
    attach(0, {std::move(task), life_});
}

void MainLoopQueue::asyncAfter(double seconds, Task task)
{
    const auto delay = static_cast<gint64>(std::ceil(std::max(seconds, 0.0) * G_USEC_PER_SEC));
    attach(g_get_monotonic_time() + delay, {std::move(task), life_});
}

void MainLoopQueue::asyncWhenIdle(Task task)
{
    idleTasks_.push_back(std::move(task));
    awaitIdleMoment();
}

void MainLoopQueue::endStart()
{
    isStarting_ = false;
    awaitIdleMoment();
}

void MainLoopQueue::awaitIdleMoment()
{
    if (isStarting_ || awaitsIdleMoment_ || idleTasks_.empty())
        return;
    awaitsIdleMoment_ = true;
    attach(0, {[this] { runIdleTasks(); }, life_}, G_PRIORITY_LOW);
}

void MainLoopQueue::runIdleTasks()
{
    awaitsIdleMoment_ = false;
    for (int count = 0; count < tasksInOneMoment && !idleTasks_.empty(); ++count) {
        const auto task = std::move(idleTasks_.front());
        idleTasks_.pop_front();
        task();
    }
    awaitIdleMoment();
}

} // namespace gtk
