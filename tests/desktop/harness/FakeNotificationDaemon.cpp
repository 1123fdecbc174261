#include "FakeNotificationDaemon.h"

namespace desktop {

namespace {

constexpr auto path = "/org/freedesktop/Notifications";
constexpr auto name = "org.freedesktop.Notifications";

constexpr auto description = R"(<node>
  <interface name="org.freedesktop.Notifications">
    <method name="GetCapabilities"><arg direction="out" type="as"/></method>
    <method name="Notify">
      <arg direction="in" type="s"/><arg direction="in" type="u"/><arg direction="in" type="s"/>
      <arg direction="in" type="s"/><arg direction="in" type="s"/><arg direction="in" type="as"/>
      <arg direction="in" type="a{sv}"/><arg direction="in" type="i"/>
      <arg direction="out" type="u"/>
    </method>
    <signal name="ActivationToken"><arg type="u"/><arg type="s"/></signal>
    <signal name="ActionInvoked"><arg type="u"/><arg type="s"/></signal>
    <signal name="NotificationClosed"><arg type="u"/><arg type="u"/></signal>
  </interface>
</node>)";

constexpr std::uint32_t hasExpired = 1;
constexpr std::uint32_t wasDismissed = 2;

} // namespace

FakeNotificationDaemon::FakeNotificationDaemon(Manner manner)
    : FakeService("DBUS_SESSION_BUS_ADDRESS", name)
    , manner_(manner)
{
    start();
}

std::vector<FakeNotificationDaemon::Notification> FakeNotificationDaemon::shown() const
{
    const std::lock_guard lock(mutex_);
    return shown_;
}

void FakeNotificationDaemon::click(std::uint32_t number)
{
    invoke([this, number] {
        tell("ActivationToken", g_variant_new("(us)", number, "token"));
        tell("ActionInvoked", g_variant_new("(us)", number, "default"));
        tell("NotificationClosed", g_variant_new("(uu)", number, wasDismissed));
    });
}

void FakeNotificationDaemon::expire(std::uint32_t number)
{
    invoke(
        [this, number] { tell("NotificationClosed", g_variant_new("(uu)", number, hasExpired)); });
}

void FakeNotificationDaemon::registerObjects()
{
    registerObject(path, description);
}

void FakeNotificationDaemon::handle(
    const std::string& method, GVariant* arguments, GDBusMethodInvocation* invocation)
{
    note(method);
    if (method == "GetCapabilities") {
        const char* capabilities[] = {"body", "actions", "persistence",
            manner_ == Manner::showsMarkup ? "body-markup" : nullptr, nullptr};
        return g_dbus_method_invocation_return_value(
            invocation, g_variant_new("(^as)", capabilities));
    }
    if (manner_ == Manner::refuses) {
        return g_dbus_method_invocation_return_error_literal(
            invocation, G_DBUS_ERROR, G_DBUS_ERROR_LIMITS_EXCEEDED, "too many");
    }
    g_dbus_method_invocation_return_value(invocation, g_variant_new("(u)", show(arguments)));
}

std::uint32_t FakeNotificationDaemon::show(GVariant* arguments)
{
    const char* program = nullptr;
    const char* icon = nullptr;
    const char* title = nullptr;
    const char* body = nullptr;
    GVariantIter* actions = nullptr;
    GVariantIter* hints = nullptr;
    gint32 duration = 0;
    Notification notification;
    g_variant_get(arguments, "(&su&s&s&sasa{sv}i)", &program, &notification.replaced, &icon, &title,
        &body, &actions, &hints, &duration);
    notification.title = title;
    notification.body = body;
    const char* key = nullptr;
    while (g_variant_iter_next(actions, "&s", &key))
        notification.actions.emplace_back(key);
    GVariant* value = nullptr;
    while (g_variant_iter_next(hints, "{&sv}", &key, &value)) {
        char* text = g_variant_print(value, FALSE);
        notification.hints[key] = text;
        g_free(text);
        g_variant_unref(value);
    }
    g_variant_iter_free(actions);
    g_variant_iter_free(hints);

    notification.number = notification.replaced ? notification.replaced : ++lastNumber_;
    const std::lock_guard lock(mutex_);
    shown_.push_back(notification);
    return notification.number;
}

void FakeNotificationDaemon::tell(const char* signal, GVariant* values)
{
    emit(path, name, signal, values);
}

} // namespace desktop
