#include "platform/gtk/usernotifications/ShownNotifications.h"

namespace gtk {

namespace {

using Texts = std::map<Glib::ustring, Glib::ustring>;

constexpr std::size_t most = 1000; // notifications whose clicks are understood
constexpr std::uint32_t hasExpired = 1; // why a notification was closed

} // namespace

ShownNotifications::ShownNotifications(ClickHandler onClick)
    : onClick_(std::move(onClick))
{
}

void ShownNotifications::listen(BusConversation& service)
{
    service.listen(
        {servicePath, serviceName, "ActivationToken"}, "(us)", [this](const BusValues& values) {
            if (auto* notification = find(child<guint32>(values, 0)))
                notification->activationToken = child<Glib::ustring>(values, 1);
        });
    service.listen(
        {servicePath, serviceName, "ActionInvoked"}, "(us)", [this](const BusValues& values) {
            const auto* notification = find(child<guint32>(values, 0));
            if (!notification || child<Glib::ustring>(values, 1) != clickAction)
                return;
            const auto clicked = *notification;
            onClick_(clicked.userInfo, clicked.activationToken);
        });
    service.listen(
        {servicePath, serviceName, "NotificationClosed"}, "(uu)", [this](const BusValues& values) {
            hearOfEnd(child<guint32>(values, 0), child<guint32>(values, 1));
        });
}

void ShownNotifications::add(
    std::uint32_t number, const std::string& identifier, const UserInfo& userInfo)
{
    shown_[number] = {identifier, userInfo, ""};
    numbers_[identifier] = number;
    if (shown_.size() > most)
        forget(shown_.begin()->first);
}

std::uint32_t ShownNotifications::number(const std::string& identifier) const
{
    const auto found = numbers_.find(identifier);
    return found == numbers_.end() ? 0 : found->second;
}

void ShownNotifications::clear()
{
    shown_.clear();
    numbers_.clear();
}

BusValues ShownNotifications::serialized() const
{
    std::map<guint32, Texts> notifications;
    for (const auto& [number, notification] : shown_)
        notifications[number] = Texts(notification.userInfo.begin(), notification.userInfo.end());
    return busValues(keepsExpired_, notifications);
}

void ShownNotifications::add(const BusValues& serialized)
{
    keepsExpired_ = child<bool>(serialized, 0);
    for (const auto& [number, userInfo] : child<std::map<guint32, Texts>>(serialized, 1))
        shown_[number].userInfo = UserInfo(userInfo.begin(), userInfo.end());
}

// The service tells of the notifications of all programs.
ShownNotifications::Notification* ShownNotifications::find(std::uint32_t number)
{
    const auto found = shown_.find(number);
    return found == shown_.end() ? nullptr : &found->second;
}

void ShownNotifications::hearOfEnd(std::uint32_t number, std::uint32_t reason)
{
    const bool mayStillBeClicked = reason == hasExpired && keepsExpired_;
    if (mayStillBeClicked || !find(number))
        return;
    forget(number);
    if (shown_.empty())
        empty_();
}

void ShownNotifications::forget(std::uint32_t number)
{
    const auto found = shown_.find(number);
    if (found == shown_.end())
        return;
    const auto named = numbers_.find(found->second.identifier);
    if (named != numbers_.end() && named->second == number)
        numbers_.erase(named);
    shown_.erase(found);
}

} // namespace gtk
