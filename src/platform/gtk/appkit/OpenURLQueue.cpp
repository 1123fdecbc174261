#include "platform/gtk/appkit/OpenURLQueue.h"

namespace gtk {

OpenURLQueue::OpenURLQueue(platform::DispatchQueue& queue, std::function<bool()> isReady,
    std::function<void(const platform::URL&)> deliver)
    : queue_(queue)
    , isReady_(std::move(isReady))
    , deliver_(std::move(deliver))
{
}

void OpenURLQueue::enqueue(const std::string& address)
{
    const auto url = platform::URL::fromString(address);
    if (!url)
        return;
    waiting_.push_back(*url);
    update();
}

void OpenURLQueue::update()
{
    if (isDeliveryQueued_ || waiting_.empty() || !isReady_())
        return;
    isDeliveryQueued_ = true;
    queue_.async([this, life = std::weak_ptr(life_)] {
        if (!life.expired())
            deliverNext();
    });
}

void OpenURLQueue::deliverNext()
{
    isDeliveryQueued_ = false;
    if (!isReady_()) // no longer
        return;
    const auto url = std::move(waiting_.front());
    waiting_.pop_front();
    deliver_(url);
    update();
}

} // namespace gtk
