#include "FakeLocationPortal.h"

#include <algorithm>

namespace desktop {

namespace {

constexpr auto desktopPath = "/org/freedesktop/portal/desktop";
constexpr auto sessionPath = "/org/freedesktop/portal/desktop/session/fake";
constexpr auto locationInterface = "org.freedesktop.portal.Location";

constexpr auto portalDescription = R"(<node>
  <interface name="org.freedesktop.portal.Location">
    <method name="CreateSession">
      <arg direction="in" type="a{sv}"/><arg direction="out" type="o"/>
    </method>
    <method name="Start">
      <arg direction="in" type="o"/><arg direction="in" type="s"/><arg direction="in" type="a{sv}"/>
      <arg direction="out" type="o"/>
    </method>
  </interface>
</node>)";

constexpr auto sessionDescription = R"(<node>
  <interface name="org.freedesktop.portal.Session">
    <method name="Close"/>
  </interface>
</node>)";

// Where the request of that sender belongs, going by the options of its call.
std::string requestPath(GDBusMethodInvocation* invocation, GVariant* options)
{
    const char* token = "";
    g_variant_lookup(options, "handle_token", "&s", &token);
    std::string sender = g_dbus_method_invocation_get_sender(invocation) + 1;
    std::ranges::replace(sender, '.', '_');
    return std::string(desktopPath) + "/request/" + sender + "/" + token;
}

GVariant* location(const char* session)
{
    GVariantBuilder properties;
    g_variant_builder_init(&properties, G_VARIANT_TYPE("a{sv}"));
    g_variant_builder_add(&properties, "{sv}", "Latitude", g_variant_new_double(12.5));
    g_variant_builder_add(&properties, "{sv}", "Longitude", g_variant_new_double(-3.25));
    g_variant_builder_add(&properties, "{sv}", "Accuracy", g_variant_new_double(20));
    return g_variant_new("(oa{sv})", session, &properties);
}

} // namespace

FakeLocationPortal::FakeLocationPortal(Manner manner)
    : FakeService("DBUS_SESSION_BUS_ADDRESS", "org.freedesktop.portal.Desktop")
    , manner_(manner)
{
    start();
}

void FakeLocationPortal::registerObjects()
{
    registerObject(desktopPath, portalDescription);
    registerObject(sessionPath, sessionDescription);
}

void FakeLocationPortal::handle(
    const std::string& method, GVariant* arguments, GDBusMethodInvocation* invocation)
{
    note(method);
    if (method == "Start")
        return answer(invocation, arguments);
    if (method == "CreateSession") {
        GVariant* options = g_variant_get_child_value(arguments, 0);
        guint32 accuracy = 0;
        g_variant_lookup(options, "accuracy", "u", &accuracy);
        note("accuracy=" + std::to_string(accuracy));
        g_variant_unref(options);
        return g_dbus_method_invocation_return_value(invocation, g_variant_new("(o)", sessionPath));
    }
    g_dbus_method_invocation_return_value(invocation, nullptr);
}

void FakeLocationPortal::answer(GDBusMethodInvocation* invocation, GVariant* arguments)
{
    GVariant* options = g_variant_get_child_value(arguments, 2);
    const auto request = requestPath(invocation, options);
    g_variant_unref(options);
    g_dbus_method_invocation_return_value(invocation, g_variant_new("(o)", request.c_str()));
    if (manner_ == Manner::neverDecides)
        return;

    const guint32 response = manner_ == Manner::refuses ? 1 : 0;
    emit(request, "org.freedesktop.portal.Request", "Response",
        g_variant_new("(u@a{sv})", response, g_variant_new("a{sv}", nullptr)));
    if (manner_ == Manner::endsTheSession)
        emit(sessionPath, "org.freedesktop.portal.Session", "Closed", g_variant_new("()"));
    // Also tells the place of a session that is not the caller's, and of callers it has refused.
    emit(desktopPath, locationInterface, "LocationUpdated", location("/some/other/session"));
    if (manner_ == Manner::grants)
        emit(desktopPath, locationInterface, "LocationUpdated", location(sessionPath));
}

} // namespace desktop
