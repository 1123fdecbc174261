#include "platform/gtk/foundation/Permission.h"

#include "platform/appkit/NSAlert.h"

namespace gtk {

using platform::NSAlert;

namespace {
constexpr auto changed = "changed";
}

void Permission::ask(const std::string& question, const std::string& explanation,
    std::function<void(bool isAllowed)> answer)
{
    const NSAlert alert{
        .messageText = question,
        .informativeText = explanation,
        .alertStyle = NSAlert::Style::informational,
        .buttons = {"Allow", "Don\u2019t Allow"},
    };
    alert.runModal(
        [answer = std::move(answer)](int button) { answer(button == NSAlert::firstButton); });
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
    queue_.async(lifetime_.guard([this] { prompt(); }));
}

void Permission::prompt()
{
    prompt_(lifetime_.guard([this](bool isAllowed) {
        if (isAsking_)
            decide(isAllowed);
    }));
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
