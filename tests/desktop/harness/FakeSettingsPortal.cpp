#include "FakeSettingsPortal.h"

namespace desktop {

namespace {

constexpr auto path = "/org/freedesktop/portal/desktop";
constexpr auto interface = "org.freedesktop.portal.Settings";
constexpr auto area = "org.freedesktop.appearance";

constexpr auto description = R"(<node>
  <interface name="org.freedesktop.portal.Settings">
    <method name="ReadAll">
      <arg direction="in" type="as"/><arg direction="out" type="a{sa{sv}}"/>
    </method>
    <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
  </interface>
  <interface name="org.freedesktop.portal.Inhibit">
    <method name="CreateMonitor">
      <arg direction="in" type="s"/><arg direction="in" type="a{sv}"/>
      <arg direction="out" type="o"/>
    </method>
  </interface>
</node>)";

} // namespace

FakeSettingsPortal::FakeSettingsPortal(std::map<std::string, unsigned> appearance)
    : FakeService("DBUS_SESSION_BUS_ADDRESS", "org.freedesktop.portal.Desktop")
    , appearance_(std::move(appearance))
{
    start();
}

void FakeSettingsPortal::change(const std::string& key, unsigned value)
{
    invoke([this, key, value] {
        appearance_[key] = value;
        emit(path, interface, "SettingChanged",
            g_variant_new("(ssv)", area, key.c_str(), g_variant_new_uint32(value)));
    });
}

void FakeSettingsPortal::registerObjects()
{
    registerObject(path, description);
}

void FakeSettingsPortal::handle(
    const std::string& method, GVariant*, GDBusMethodInvocation* invocation)
{
    note(method);
    if (method == "CreateMonitor") { // by the toolkit
        g_dbus_method_invocation_return_value(invocation, g_variant_new("(o)", path));
        return;
    }
    GVariantBuilder members;
    g_variant_builder_init(&members, G_VARIANT_TYPE("a{sv}"));
    for (const auto& [key, value] : appearance_)
        g_variant_builder_add(&members, "{sv}", key.c_str(), g_variant_new_uint32(value));
    GVariantBuilder areas;
    g_variant_builder_init(&areas, G_VARIANT_TYPE("a{sa{sv}}"));
    g_variant_builder_add(&areas, "{s@a{sv}}", area, g_variant_builder_end(&members));
    g_dbus_method_invocation_return_value(
        invocation, g_variant_new("(@a{sa{sv}})", g_variant_builder_end(&areas)));
}

} // namespace desktop
