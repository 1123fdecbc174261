#include "platform/gtk/usernotifications/ShownNotifications.h"

namespace gtk {

namespace {

using Texts = std::map<Glib::ustring, Glib::ustring>;

constexpr std::size_t most = 1000; // notifications whose clicks are understood
constexpr std::uint32_t hasExpired = 1; // why a notification was closed

template <class T> T child(const Glib::VariantContainerBase& values, unsigned index)
{
    Glib::Variant<T> value;
    values.get_child(value, index);
    return value.get();
}

} // namespace

ShownNotifications::ShownNotifications(ClickHandler onClick)
    : onClick_(std::move(onClick))
{
}

ShownNotifications::~ShownNotifications()
{
    if (connection_)
        connection_->signal_unsubscribe(subscription_);
}

void ShownNotifications::listen(const Glib::RefPtr<Gio::DBus::Connection>& connection)
{
    connection_ = connection;
    const auto receive = [this](const Glib::RefPtr<Gio::DBus::Connection>&, const Glib::ustring&,
                             const Glib::ustring&, const Glib::ustring&,
                             const Glib::ustring& signal,
                             const Glib::VariantContainerBase& values) { hear(signal, values); };
    subscription_ =
        connection_->signal_subscribe(receive, serviceName, serviceName, {}, servicePath);
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

Glib::VariantContainerBase ShownNotifications::serialized() const
{
    std::map<guint32, Texts> notifications;
    for (const auto& [number, notification] : shown_)
        notifications[number] = Texts(notification.userInfo.begin(), notification.userInfo.end());
    return Glib::VariantContainerBase::create_tuple({
        Glib::Variant<bool>::create(keepsExpired_),
        Glib::Variant<std::map<guint32, Texts>>::create(notifications),
    });
}

void ShownNotifications::add(const Glib::VariantContainerBase& serialized)
{
    keepsExpired_ = child<bool>(serialized, 0);
    for (const auto& [number, userInfo] : child<std::map<guint32, Texts>>(serialized, 1))
        shown_[number].userInfo = UserInfo(userInfo.begin(), userInfo.end());
}

void ShownNotifications::hear(const std::string& signal, const Glib::VariantContainerBase& values)
{
    const bool hasText = values.is_of_type(Glib::VariantType("(us)"));
    const bool hasReason = values.is_of_type(Glib::VariantType("(uu)"));
    if (!hasText && !hasReason)
        return;
    const auto number = child<guint32>(values, 0);
    const auto found = shown_.find(number);
    if (found == shown_.end())
        return; // another program's
    if (signal == "ActivationToken" && hasText) {
        found->second.activationToken = child<Glib::ustring>(values, 1);
    } else if (signal == "ActionInvoked" && hasText
        && child<Glib::ustring>(values, 1) == clickAction) {
        const auto clicked = found->second;
        onClick_(clicked.userInfo, clicked.activationToken);
    } else if (signal == "NotificationClosed" && hasReason
        && (child<guint32>(values, 1) != hasExpired || !keepsExpired_)) {
        forget(number);
        if (shown_.empty())
            empty_();
    }
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
