#include "platform/gtk/corelocation/LocationPermission.h"

namespace gtk {

using platform::CLAuthorizationStatus;

namespace {
constexpr auto changed = "changed";
}

LocationPermission::LocationPermission(
    platform::DispatchQueue& queue, platform::UserDefaults& store, Prompt prompt)
    : queue_(queue)
    , store_(store)
    , prompt_(std::move(prompt))
{
}

CLAuthorizationStatus LocationPermission::status() const
{
    if (!store_.contains(key))
        return CLAuthorizationStatus::notDetermined;
    return store_.boolean(key) ? CLAuthorizationStatus::authorizedAlways
                               : CLAuthorizationStatus::denied;
}

void LocationPermission::request()
{
    if (isAsking_ || status() != CLAuthorizationStatus::notDetermined)
        return;
    isAsking_ = true;
    queue_.async([this, life = std::weak_ptr(life_)] {
        if (!life.expired())
            ask();
    });
}

void LocationPermission::ask()
{
    prompt_([this, life = std::weak_ptr(life_)](bool isAllowed) {
        if (!life.expired())
            decide(isAllowed);
    });
}

platform::NotificationCenter::Observer LocationPermission::observe(std::function<void()> handler)
{
    return changes_.addObserver(
        changed, nullptr, [handler = std::move(handler)](const auto&) { handler(); });
}

void LocationPermission::decide(bool isAllowed)
{
    if (!isAsking_)
        return;
    isAsking_ = false;
    store_.setBoolean(key, isAllowed);
    changes_.post(changed);
}

} // namespace gtk
