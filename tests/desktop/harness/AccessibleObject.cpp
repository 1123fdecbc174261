#include "AccessibleObject.h"

#include <algorithm>
#include <gio/gio.h>
#include <iterator>

namespace desktop {

namespace {

constexpr auto accessible = "org.a11y.atspi.Accessible";

GVariant* call(GDBusConnection* bus, const char* program, const char* path, const char* interface,
    const char* method, GVariant* arguments)
{
    constexpr int limit = 5000; // milliseconds
    return g_dbus_connection_call_sync(bus, program, path, interface, method, arguments, nullptr,
        G_DBUS_CALL_FLAGS_NONE, limit, nullptr, nullptr);
}

// The bus that programs and screen readers meet on. Null where the desktop has none.
GDBusConnection* accessibilityBus()
{
    static GDBusConnection* const connection = []() -> GDBusConnection* {
        g_autoptr(GDBusConnection) session = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
        g_autoptr(GVariant) answer = session
            ? call(session, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", nullptr)
            : nullptr;
        if (!answer)
            return nullptr;
        const char* address = nullptr;
        g_variant_get(answer, "(&s)", &address);
        const auto flags = GDBusConnectionFlags(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT
            | G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
        return g_dbus_connection_new_for_address_sync(address, flags, nullptr, nullptr, nullptr);
    }();
    return connection;
}

} // namespace

std::vector<AccessibleObject> AccessibleObject::applications(int pid)
{
    if (!accessibilityBus())
        return {};
    const AccessibleObject bus("org.freedesktop.DBus", "/org/freedesktop/DBus");
    const AccessibleObject root("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root");
    auto result = root.children();
    std::erase_if(result, [&](const auto& application) {
        guint32 process = 0;
        if (const auto answer = bus.ask("org.freedesktop.DBus", "GetConnectionUnixProcessID",
                g_variant_new("(s)", application.program_.c_str())))
            g_variant_get(answer.get(), "(u)", &process);
        return static_cast<int>(process) != pid;
    });
    return result;
}

std::optional<AccessibleObject> AccessibleObject::find(int pid, const std::string& name)
{
    // Level by level: a control of the program is near the root, and the page, which may be long or
    // busy, is far below it.
    for (auto level = applications(pid); !level.empty();) {
        std::vector<AccessibleObject> below;
        for (const auto& object : level) {
            if (object.name() == name && object.isVisible())
                return object;
            std::ranges::move(object.children(), std::back_inserter(below));
        }
        level = std::move(below);
    }
    return {};
}

int AccessibleObject::count(int pid, const std::string& role)
{
    int sum = 0;
    for (const auto& application : applications(pid))
        sum += application.count(role);
    return sum;
}

Rectangle AccessibleObject::bounds() const
{
    constexpr guint32 inWindow = 1; // number of the coordinates in the protocol
    Rectangle bounds;
    if (const auto answer =
            ask("org.a11y.atspi.Component", "GetExtents", g_variant_new("(u)", inWindow)))
        g_variant_get(
            answer.get(), "((iiii))", &bounds.x, &bounds.y, &bounds.width, &bounds.height);
    return bounds;
}

bool AccessibleObject::activate() const
{
    gboolean isDone = FALSE;
    if (const auto answer = ask("org.a11y.atspi.Action", "DoAction", g_variant_new("(i)", 0)))
        g_variant_get(answer.get(), "(b)", &isDone);
    return isDone;
}

AccessibleObject::Answer AccessibleObject::ask(
    const char* interface, const char* method, GVariant* arguments) const
{
    auto* answer =
        call(accessibilityBus(), program_.c_str(), path_.c_str(), interface, method, arguments);
    return answer ? Answer(answer, g_variant_unref) : nullptr;
}

std::string AccessibleObject::name() const
{
    const auto answer =
        ask("org.freedesktop.DBus.Properties", "Get", g_variant_new("(ss)", accessible, "Name"));
    g_autoptr(GVariant) value = nullptr;
    if (answer)
        g_variant_get(answer.get(), "(v)", &value);
    return value ? g_variant_get_string(value, nullptr) : "";
}

bool AccessibleObject::isVisible() const
{
    constexpr guint32 visible = 1u << 30; // number of the state in the protocol
    const auto answer = ask(accessible, "GetState");
    if (!answer)
        return false;
    g_autoptr(GVariantIter) states = nullptr;
    guint32 low = 0;
    g_variant_get(answer.get(), "(au)", &states);
    g_variant_iter_next(states, "u", &low);
    return low & visible;
}

std::vector<AccessibleObject> AccessibleObject::children() const
{
    const auto answer = ask(accessible, "GetChildren");
    if (!answer)
        return {};
    std::vector<AccessibleObject> result;
    g_autoptr(GVariantIter) addresses = nullptr;
    g_variant_get(answer.get(), "(a(so))", &addresses);
    const char *program = nullptr, *path = nullptr;
    while (g_variant_iter_next(addresses, "(&s&o)", &program, &path))
        result.push_back(AccessibleObject(program, path));
    return result;
}

int AccessibleObject::count(const std::string& wanted) const
{
    const auto answer = ask(accessible, "GetRoleName");
    const char* role = "";
    if (answer)
        g_variant_get(answer.get(), "(&s)", &role);
    int sum = role == wanted && isVisible() ? 1 : 0;
    for (const auto& child : children())
        sum += child.count(wanted);
    return sum;
}

} // namespace desktop
