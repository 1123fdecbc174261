#include "platform/gtk/foundation/GtkDispatchQueue.h"

#include <algorithm>
#include <cmath>
#include <glib.h>
#include <mutex>

namespace gtk {

namespace {

// So few that the next frame is not late, and so many that not each has a layout of its own.
constexpr int tasksInOneMoment = 8;

// How long tasks may keep other events from being handled, in microseconds.
constexpr gint64 longestTurn = 4'000;

struct DelayedTask {
    platform::DispatchQueue::Task run;
    std::weak_ptr<void> queue;
};

gboolean runOnce(gpointer data)
{
    auto& task = *static_cast<DelayedTask*>(data);
    if (!task.queue.expired())
        task.run();
    return G_SOURCE_REMOVE;
}

void forget(gpointer data)
{
    delete static_cast<DelayedTask*>(data);
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

// `time` is on the monotonic clock in microseconds; 0 means at once.
void attach(gint64 time, DelayedTask task, int priority = G_PRIORITY_DEFAULT)
{
    auto* source = g_source_new(&sourceFunctions, sizeof(GSource));
    g_source_set_priority(source, priority);
    g_source_set_callback(source, runOnce, new DelayedTask(std::move(task)), forget);
    g_source_set_ready_time(source, time);
    g_source_attach(source, nullptr);
    g_source_unref(source);
}

} // namespace

// The tasks that run as soon as they can, behind one event source for all of them: a page may post
// a hundred thousand messages at once, and each is a task.
class GtkDispatchQueue::Waiting : public std::enable_shared_from_this<Waiting> {
public:
    Waiting()
    {
        g_source_set_can_recurse(source_, TRUE);
        g_source_set_callback(source_, run, this, nullptr);
        g_source_attach(source_, nullptr);
    }

    ~Waiting() { g_source_unref(source_); }

    void append(Task task)
    {
        const std::scoped_lock lock(mutex_);
        if (tasks_.empty())
            g_source_set_ready_time(source_, 0);
        tasks_.push_back(std::move(task));
    }

    void drop()
    {
        g_source_destroy(source_);
        std::deque<Task> dropped; // whose destructors may do anything
        const std::scoped_lock lock(mutex_);
        dropped.swap(tasks_);
    }

private:
    static gboolean run(gpointer data)
    {
        const auto self = static_cast<Waiting*>(data)->shared_from_this();
        const auto end = g_get_monotonic_time() + longestTurn;
        for (auto count = self->size(); count > 0 && g_get_monotonic_time() < end; --count) {
            if (const auto task = self->takeFirst())
                task();
        }
        return G_SOURCE_CONTINUE;
    }

    std::size_t size()
    {
        const std::scoped_lock lock(mutex_);
        return tasks_.size();
    }

    // Empty when there is none, which a loop inside of a task may have brought about.
    Task takeFirst()
    {
        const std::scoped_lock lock(mutex_);
        if (tasks_.empty())
            return {};
        auto task = std::move(tasks_.front());
        tasks_.pop_front();
        if (tasks_.empty())
            g_source_set_ready_time(source_, -1);
        return task;
    }

    GSource* const source_ = g_source_new(&sourceFunctions, sizeof(GSource));
    std::mutex mutex_; // tasks come from any thread
    std::deque<Task> tasks_;
};

GtkDispatchQueue::GtkDispatchQueue()
    : waiting_(std::make_shared<Waiting>())
{
}

GtkDispatchQueue::~GtkDispatchQueue()
{
    waiting_->drop();
}

void GtkDispatchQueue::async(Task task)
{
    waiting_->append(std::move(task));
}

void GtkDispatchQueue::asyncAfter(double seconds, Task task)
{
    const auto delay = static_cast<gint64>(std::ceil(std::max(seconds, 0.0) * G_USEC_PER_SEC));
    attach(g_get_monotonic_time() + delay, {std::move(task), life_});
}

void GtkDispatchQueue::asyncWhenIdle(Task task)
{
    idleTasks_.push_back(std::move(task));
    awaitIdleMoment();
}

void GtkDispatchQueue::endStart()
{
    isStarting_ = false;
    awaitIdleMoment();
}

void GtkDispatchQueue::awaitIdleMoment()
{
    if (isStarting_ || awaitsIdleMoment_ || idleTasks_.empty())
        return;
    awaitsIdleMoment_ = true;
    attach(0, {[this] { runIdleTasks(); }, life_}, G_PRIORITY_LOW);
}

void GtkDispatchQueue::runIdleTasks()
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
