#include "platform/gtk/usernotifications/DesktopNotifications.h"

#include "platform/gtk/usernotifications/NotificationAgent.h"
#include "platform/gtk/usernotifications/NotificationText.h"
#include "platform/Platform.h"

#include <algorithm>

namespace gtk {

namespace {

constexpr auto serviceName = ShownNotifications::serviceName;
constexpr auto busName = "org.freedesktop.DBus";

constexpr int patience = 10'000; // milliseconds for one answer
constexpr gint32 serviceDecides = -1; // how long it shows

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

DesktopNotifications::DesktopNotifications(
    std::string application, ShownNotifications::ClickHandler onClick)
    : application_(std::move(application))
    , cancellable_(Gio::Cancellable::create())
    , shown_(std::move(onClick))
{
}

DesktopNotifications::~DesktopNotifications()
{
    cancellable_->cancel();
    if (connection_)
        connection_->signal_unsubscribe(subscription_);
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
    const auto forgetAll = [this](const auto&, const auto&, const auto&, const auto&, const auto&,
                               const auto&) {
        // Another service has other numbers and other capabilities.
        readsMarkup_.reset();
        shown_.clear();
    };
    subscription_ = connection_->signal_subscribe(
        forgetAll, busName, busName, "NameOwnerChanged", {}, serviceName);
    shown_.listen(connection_);
}

void DesktopNotifications::askForCapabilities()
{
    call("GetCapabilities", {}, "(as)", [this](const auto& result) {
        const auto capabilities = child<std::vector<Glib::ustring>>(result, 0);
        const auto has = [&](const char* capability) {
            return std::find(capabilities.begin(), capabilities.end(), capability)
                != capabilities.end();
        };
        readsMarkup_ = has("body-markup");
        shown_.setKeepsExpired(has("persistence"));
        notify();
    });
}

void DesktopNotifications::notify()
{
    const auto& request = jobs_.front().request;
    call("Notify", notifyArguments(request), "(u)", [this](const auto& result) {
        const auto& shown = jobs_.front().request;
        shown_.add(child<guint32>(result, 0), shown.identifier, shown.content.userInfo);
        finish({});
    });
}

DesktopNotifications::Arguments DesktopNotifications::notifyArguments(
    const platform::UNNotificationRequest& request) const
{
    const auto& content = request.content;
    Hints hints{{"desktop-entry", variantText(application_)}};
    if (content.sound)
        hints.emplace("sound-name", variantText(defaultSound));
    else
        hints.emplace("suppress-sound", variant(true));

    return Arguments::create_tuple({
        variantText("Velmaro Online"),
        variant<guint32>(shown_.number(request.identifier)),
        variantText(application_), // the icon's name too
        variantText(notificationText(content.title)),
        variantText(
            *readsMarkup_ ? notificationMarkup(content.body) : notificationText(content.body)),
        variant(std::vector<Glib::ustring>{ShownNotifications::clickAction, clickTitle}),
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
    connection_->call(ShownNotifications::servicePath, serviceName, method, arguments, finishCall,
        cancellable_, serviceName, patience, Gio::DBus::CallFlags::NONE,
        Glib::VariantType(resultType));
}

void DesktopNotifications::finish(const std::optional<platform::NSError>& error)
{
    const auto completion = std::move(jobs_.front().completion);
    jobs_.pop_front();
    if (!jobs_.empty())
        start();
    completion(error);
}

void DesktopNotifications::leaveToAgent() const
{
    if (shown_.isEmpty())
        return;
    const auto handover = shown_.serialized();
    if (const auto failure = startNotificationAgent(application_, handover))
        platform::NSLog("Velmaro notifications cannot be clicked any more: " + *failure);
}

} // namespace gtk
