#include "platform/gtk/launch/RequestQueue.h"

namespace gtk {

RequestQueue::RequestQueue(platform::DispatchQueue& queue, std::function<bool()> isReady)
    : queue_(queue)
    , isReady_(std::move(isReady))
{
}

void RequestQueue::enqueue(std::function<void()> request)
{
    waiting_.push_back(std::move(request));
    update();
}

void RequestQueue::update()
{
    if (isNextQueued_ || waiting_.empty() || !isReady_())
        return;
    isNextQueued_ = true;
    queue_.async(lifetime_.guard([this] { performNext(); }));
}

void RequestQueue::performNext()
{
    isNextQueued_ = false;
    if (!isReady_()) // no longer
        return;
    const auto request = std::move(waiting_.front());
    waiting_.pop_front();
    request();
    update();
}

} // namespace gtk
