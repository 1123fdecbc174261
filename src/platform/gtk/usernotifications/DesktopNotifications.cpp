#include "platform/gtk/usernotifications/DesktopNotifications.h"

#include "platform/gtk/usernotifications/NotificationText.h"

#include <algorithm>

namespace gtk {

namespace {

constexpr auto serviceName = "org.freedesktop.Notifications";
constexpr auto servicePath = "/org/freedesktop/Notifications";
constexpr auto busName = "org.freedesktop.DBus";

constexpr int patience = 10'000; // milliseconds for one answer
constexpr std::size_t mostRemembered = 1000; // notifications whose clicks are understood
constexpr gint32 serviceDecides = -1; // how long it shows
constexpr std::uint32_t hasExpired = 1; // why a notification was closed

constexpr auto clickAction = "default";
constexpr auto clickTitle = "Open";
constexpr auto defaultSound = "message-new-instant";

using Hints = std::map<Glib::ustring, Glib::VariantBase>;

template <class T> Glib::Variant<T> variant(const T& value)
{
    return Glib::Variant<T>::create(value);
}

Glib::Variant<Glib::ustring> variantText(const std::string& text)
{
    return Glib::Variant<Glib::ustring>::create(text);
}

template <class T> T child(const Glib::VariantContainerBase& values, unsigned index)
{
    Glib::Variant<T> value;
    values.get_child(value, index);
    return value.get();
}

} // namespace

DesktopNotifications::DesktopNotifications(std::string application, ClickHandler onClick)
    : application_(std::move(application))
    , onClick_(std::move(onClick))
    , cancellable_(Gio::Cancellable::create())
{
}

DesktopNotifications::~DesktopNotifications()
{
    cancellable_->cancel();
    for (const auto subscription : subscriptions_)
        connection_->signal_unsubscribe(subscription);
}

void DesktopNotifications::post(
    const platform::UNNotificationRequest& request, Completion completion)
{
    jobs_.push_back({request, std::move(completion)});
    if (jobs_.size() == 1)
        start();
}

void DesktopNotifications::start()
{
    if (!connection_)
        connect();
    else if (!readsMarkup_)
        askForCapabilities();
    else
        notify();
}

void DesktopNotifications::connect()
{
    const auto finishConnecting = [this, life = std::weak_ptr(life_)](
                                      Glib::RefPtr<Gio::AsyncResult>& result) {
        if (life.expired())
            return;
        try {
            connection_ = Gio::DBus::Connection::get_finish(result);
        } catch (const Glib::Error& error) {
            return finish(notificationError(error));
        }
        listen();
        start();
    };
    Gio::DBus::Connection::get(Gio::DBus::BusType::SESSION, finishConnecting, cancellable_);
}

void DesktopNotifications::listen()
{
    const auto receive = [this](const Glib::RefPtr<Gio::DBus::Connection>&, const Glib::ustring&,
                             const Glib::ustring&, const Glib::ustring&,
                             const Glib::ustring& signal,
                             const Arguments& values) { hear(signal, values); };
    const auto forgetAll = [this](const auto&, const auto&, const auto&, const auto&, const auto&,
                               const auto&) {
        // Another service has other numbers and other capabilities.
        readsMarkup_.reset();
        shown_.clear();
        numbers_.clear();
    };
    subscriptions_ = {
        connection_->signal_subscribe(receive, serviceName, serviceName, {}, servicePath),
        connection_->signal_subscribe(
            forgetAll, busName, busName, "NameOwnerChanged", {}, serviceName),
    };
}

void DesktopNotifications::askForCapabilities()
{
    call("GetCapabilities", {}, "(as)", [this](const auto& result) {
        const auto capabilities = child<std::vector<Glib::ustring>>(result, 0);
        readsMarkup_ = std::find(capabilities.begin(), capabilities.end(), "body-markup")
            != capabilities.end();
        notify();
    });
}

void DesktopNotifications::notify()
{
    const auto& request = jobs_.front().request;
    call("Notify", notifyArguments(request), "(u)", [this](const auto& result) {
        remember(child<guint32>(result, 0), jobs_.front().request);
        finish({});
    });
}

DesktopNotifications::Arguments DesktopNotifications::notifyArguments(
    const platform::UNNotificationRequest& request) const
{
    const auto& content = request.content;
    const auto earlier = numbers_.find(request.identifier);
    Hints hints{{"desktop-entry", variantText(application_)}};
    if (content.sound)
        hints.emplace("sound-name", variantText(defaultSound));
    else
        hints.emplace("suppress-sound", variant(true));

    return Arguments::create_tuple({
        variantText("Velmaro Online"),
        variant<guint32>(earlier == numbers_.end() ? 0 : earlier->second),
        variantText(application_), // the icon's name too
        variantText(notificationText(content.title)),
        variantText(
            *readsMarkup_ ? notificationMarkup(content.body) : notificationText(content.body)),
        variant(std::vector<Glib::ustring>{clickAction, clickTitle}),
        variant(hints),
        variant(serviceDecides),
    });
}

void DesktopNotifications::call(
    const char* method, const Arguments& arguments, const char* resultType, Result then)
{
    const auto finishCall = [this, life = std::weak_ptr(life_), then = std::move(then)](
                                Glib::RefPtr<Gio::AsyncResult>& result) {
        if (life.expired())
            return;
        Arguments values;
        try {
            values = connection_->call_finish(result);
        } catch (const Glib::Error& error) {
            return finish(notificationError(error));
        }
        const auto kept = then;
        kept(values);
    };
    connection_->call(servicePath, serviceName, method, arguments, finishCall, cancellable_,
        serviceName, patience, Gio::DBus::CallFlags::NONE, Glib::VariantType(resultType));
}

void DesktopNotifications::finish(const std::optional<platform::NSError>& error)
{
    const auto completion = std::move(jobs_.front().completion);
    jobs_.pop_front();
    if (!jobs_.empty())
        start();
    completion(error);
}

void DesktopNotifications::remember(
    std::uint32_t number, const platform::UNNotificationRequest& request)
{
    shown_[number] = {request.identifier, request.content.userInfo, ""};
    numbers_[request.identifier] = number;
    if (shown_.size() > mostRemembered)
        forget(shown_.begin()->first);
}

void DesktopNotifications::forget(std::uint32_t number)
{
    const auto found = shown_.find(number);
    if (found == shown_.end())
        return;
    const auto named = numbers_.find(found->second.identifier);
    if (named != numbers_.end() && named->second == number)
        numbers_.erase(named);
    shown_.erase(found);
}

void DesktopNotifications::hear(const std::string& signal, const Arguments& values)
{
    const bool hasText = values.is_of_type(Glib::VariantType("(us)"));
    const bool hasReason = values.is_of_type(Glib::VariantType("(uu)"));
    if (!hasText && !hasReason)
        return;
    const auto number = child<guint32>(values, 0);
    const auto found = shown_.find(number);
    if (found == shown_.end())
        return; // another program's
    if (signal == "ActivationToken" && hasText)
        found->second.activationToken = child<Glib::ustring>(values, 1);
    // One that has expired may still be clicked where the desktop keeps a list of them.
    else if (signal == "NotificationClosed" && hasReason && child<guint32>(values, 1) != hasExpired)
        forget(number);
    else if (signal == "ActionInvoked" && hasText && child<Glib::ustring>(values, 1) == clickAction)
        onClick_(UserInfo(found->second.userInfo), std::move(found->second.activationToken));
}

} // namespace gtk
