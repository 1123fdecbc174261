#include "platform/gtk/foundation/MainLoopQueue.h"

#include <algorithm>
#include <cmath>
#include <glib.h>

namespace gtk {

namespace {

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
void attach(gint64 time, WaitingTask task)
{
    auto* source = g_source_new(&sourceFunctions, sizeof(GSource));
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

} // namespace gtk
