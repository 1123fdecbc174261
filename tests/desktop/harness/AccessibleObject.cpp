#include "AccessibleObject.h"

#include <algorithm>
#include <gio/gio.h>
#include <iterator>

namespace desktop {

namespace {

using Answer = std::unique_ptr<GVariant, decltype(&g_variant_unref)>;

constexpr int limit = 5000; // milliseconds, for each question
constexpr guint32 inWindow = 1; // number of the coordinates in the protocol
constexpr guint visible = 30; // number of the state in the protocol

Answer ask(GDBusConnection* bus, const char* program, const char* path, const char* interface,
    const char* method, GVariant* arguments = nullptr)
{
    GVariant* answer = g_dbus_connection_call_sync(bus, program, path, interface, method, arguments,
        nullptr, G_DBUS_CALL_FLAGS_NONE, limit, nullptr, nullptr);
    return {answer, g_variant_unref};
}

// The bus that programs and screen readers meet on. Null where the desktop has none.
GDBusConnection* accessibilityBus()
{
    static GDBusConnection* const connection = []() -> GDBusConnection* {
        GDBusConnection* session = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
        if (!session)
            return nullptr;
        const auto answer =
            ask(session, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress");
        g_object_unref(session);
        if (!answer)
            return nullptr;
        const char* address = nullptr;
        g_variant_get(answer.get(), "(&s)", &address);
        const auto flags = GDBusConnectionFlags(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT
            | G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
        return g_dbus_connection_new_for_address_sync(address, flags, nullptr, nullptr, nullptr);
    }();
    return connection;
}

int processOf(const char* program)
{
    guint32 pid = 0;
    if (const auto answer = ask(accessibilityBus(), "org.freedesktop.DBus", "/org/freedesktop/DBus",
            "org.freedesktop.DBus", "GetConnectionUnixProcessID", g_variant_new("(s)", program)))
        g_variant_get(answer.get(), "(u)", &pid);
    return static_cast<int>(pid);
}

} // namespace

std::vector<AccessibleObject> AccessibleObject::applications(int pid)
{
    if (!accessibilityBus())
        return {};
    const AccessibleObject root({"org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"});
    auto result = root.children();
    std::erase_if(result, [pid](const auto& application) {
        return processOf(application.address_.program.c_str()) != pid;
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

std::string AccessibleObject::role() const
{
    const auto answer = ask(accessibilityBus(), address_.program.c_str(), address_.path.c_str(),
        "org.a11y.atspi.Accessible", "GetRoleName");
    const char* role = "";
    if (answer)
        g_variant_get(answer.get(), "(&s)", &role);
    return role;
}

Rectangle AccessibleObject::bounds() const
{
    const auto answer = ask(accessibilityBus(), address_.program.c_str(), address_.path.c_str(),
        "org.a11y.atspi.Component", "GetExtents", g_variant_new("(u)", inWindow));
    Rectangle bounds;
    if (answer)
        g_variant_get(
            answer.get(), "((iiii))", &bounds.x, &bounds.y, &bounds.width, &bounds.height);
    return bounds;
}

bool AccessibleObject::activate() const
{
    const auto answer = ask(accessibilityBus(), address_.program.c_str(), address_.path.c_str(),
        "org.a11y.atspi.Action", "DoAction", g_variant_new("(i)", 0));
    gboolean isDone = FALSE;
    if (answer)
        g_variant_get(answer.get(), "(b)", &isDone);
    return isDone;
}

std::string AccessibleObject::name() const
{
    const auto answer = ask(accessibilityBus(), address_.program.c_str(), address_.path.c_str(),
        "org.freedesktop.DBus.Properties", "Get",
        g_variant_new("(ss)", "org.a11y.atspi.Accessible", "Name"));
    if (!answer)
        return {};
    GVariant* value = nullptr;
    g_variant_get(answer.get(), "(v)", &value);
    std::string name = g_variant_get_string(value, nullptr);
    g_variant_unref(value);
    return name;
}

bool AccessibleObject::isVisible() const
{
    const auto answer = ask(accessibilityBus(), address_.program.c_str(), address_.path.c_str(),
        "org.a11y.atspi.Accessible", "GetState");
    if (!answer)
        return false;
    GVariantIter* states = nullptr;
    g_variant_get(answer.get(), "(au)", &states);
    guint32 low = 0;
    g_variant_iter_next(states, "u", &low);
    g_variant_iter_free(states);
    return low & (1u << visible);
}

std::vector<AccessibleObject> AccessibleObject::children() const
{
    std::vector<AccessibleObject> result;
    const auto answer = ask(accessibilityBus(), address_.program.c_str(), address_.path.c_str(),
        "org.a11y.atspi.Accessible", "GetChildren");
    if (!answer)
        return result;
    GVariantIter* addresses = nullptr;
    g_variant_get(answer.get(), "(a(so))", &addresses);
    const char *program = nullptr, *path = nullptr;
    while (g_variant_iter_next(addresses, "(&s&o)", &program, &path))
        result.push_back(AccessibleObject({program, path}));
    g_variant_iter_free(addresses);
    return result;
}

int AccessibleObject::count(const std::string& wanted) const
{
    int sum = role() == wanted && isVisible() ? 1 : 0;
    for (const auto& child : children())
        sum += child.count(wanted);
    return sum;
}

} // namespace desktop
