#include "platform/gtk/foundation/Permission.h"

namespace gtk {

namespace {
constexpr auto changed = "changed";
}

Permission::Permission(
    platform::DispatchQueue& queue, platform::UserDefaults& store, std::string key, Prompt prompt)
    : queue_(queue)
    , store_(store)
    , key_(std::move(key))
    , prompt_(std::move(prompt))
{
}

std::optional<bool> Permission::isAllowed() const
{
    return store_.contains(key_) ? std::optional(store_.boolean(key_)) : std::nullopt;
}

void Permission::request()
{
    if (isAsking_ || isAllowed())
        return;
    isAsking_ = true;
    queue_.async([this, life = std::weak_ptr(life_)] {
        if (!life.expired())
            ask();
    });
}

void Permission::ask()
{
    prompt_([this, life = std::weak_ptr(life_)](bool isAllowed) {
        if (!life.expired() && isAsking_)
            decide(isAllowed);
    });
}

platform::NotificationCenter::Observer Permission::observe(std::function<void()> handler)
{
    return changes_.addObserver(
        changed, nullptr, [handler = std::move(handler)](const auto&) { handler(); });
}

void Permission::decide(bool isAllowed)
{
    isAsking_ = false;
    store_.setBoolean(key_, isAllowed);
    changes_.post(changed);
}

} // namespace gtk
