// How the desktop session ends, and what the application makes of it.

#include "harness/AppProcess.h"
#include "harness/SavedSettings.h"

#include <gio/gio.h>
#include <gtest/gtest.h>
#include <X11/Xlib.h>

namespace desktop {

namespace {

// Saving tidies the routes up, which tells a file that was saved from one that was left alone.
const nlohmann::json untidyRoutes = {"drives", "  ", " vehicles "};
const nlohmann::json tidyRoutes = {"drives", "vehicles"};

void saveUntidyRoutes()
{
    SavedSettings::write({{"vl.open.routes", untidyRoutes}});
}

nlohmann::json savedRoutes()
{
    return SavedSettings::read()["vl.open.routes"];
}

// The application asks the session manager below while it starts.
void answerCalls()
{
    while (g_main_context_iteration(nullptr, FALSE)) { }
}

// Whether its window is there, and so its tabs.
bool isUp()
{
    return eventually([] {
        answerCalls();
        return !Desktop::windows().empty();
    });
}

// The desktop's session manager, which asks its clients before it ends the session.
class SessionManager {
public:
    SessionManager()
        : bus_(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr))
    {
        publish(managerPath,
            "<node><interface name='org.gnome.SessionManager'>"
            "<method name='RegisterClient'><arg type='s' direction='in'/>"
            "<arg type='s' direction='in'/><arg type='o' direction='out'/></method>"
            "<method name='UnregisterClient'><arg type='o' direction='in'/></method>"
            "</interface></node>");
        publish(clientPath,
            "<node><interface name='org.gnome.SessionManager.ClientPrivate'>"
            "<method name='EndSessionResponse'><arg type='b' direction='in'/>"
            "<arg type='s' direction='in'/></method>"
            "<signal name='QueryEndSession'><arg type='u'/></signal>"
            "<signal name='EndSession'><arg type='u'/></signal>"
            "<signal name='CancelEndSession'/></interface></node>");
        name_ = g_bus_own_name_on_connection(bus_, "org.gnome.SessionManager",
            G_BUS_NAME_OWNER_FLAGS_NONE, nullptr, nullptr, nullptr, nullptr);
    }

    ~SessionManager()
    {
        g_bus_unown_name(name_);
        for (const auto object : objects_)
            g_dbus_connection_unregister_object(bus_, object);
        g_object_unref(bus_);
    }

    bool waitForCall(const std::string& method)
    {
        return eventually([&] {
            answerCalls();
            return std::erase(calls_, method) > 0;
        });
    }

    void tellClient(const char* signal, GVariant* arguments)
    {
        g_dbus_connection_emit_signal(bus_, nullptr, clientPath,
            "org.gnome.SessionManager.ClientPrivate", signal, arguments, nullptr);
        g_dbus_connection_flush_sync(bus_, nullptr, nullptr);
    }

private:
    static constexpr auto managerPath = "/org/gnome/SessionManager";
    static constexpr auto clientPath = "/org/gnome/SessionManager/Client1";

    void publish(const char* path, const char* description)
    {
        static constexpr GDBusInterfaceVTable functions{
            .method_call = answer, .get_property = nullptr, .set_property = nullptr, .padding = {}};
        auto* node = g_dbus_node_info_new_for_xml(description, nullptr);
        objects_.push_back(g_dbus_connection_register_object(
            bus_, path, node->interfaces[0], &functions, this, nullptr, nullptr));
        g_dbus_node_info_unref(node);
    }

    static void answer(GDBusConnection*, const gchar*, const gchar*, const gchar*,
        const gchar* method, GVariant*, GDBusMethodInvocation* call, gpointer self)
    {
        static_cast<SessionManager*>(self)->calls_.emplace_back(method);
        const bool isRegistration = std::string(method) == "RegisterClient";
        g_dbus_method_invocation_return_value(
            call, isRegistration ? g_variant_new("(o)", clientPath) : nullptr);
    }

    GDBusConnection* bus_;
    std::vector<guint> objects_;
    guint name_ = 0;
    std::vector<std::string> calls_; // not yet waited for
};

// An X server of its own, to be taken away from under the application.
class DisplayServer {
public:
    std::string name()
    {
        const bool isUp = eventually([&] { return !process_.output().empty(); });
        return isUp ? ":" + process_.output().substr(0, process_.output().find('\n')) : "";
    }

    void end() { process_.signal(SIGTERM); }

private:
    Process process_{{"Xvfb", "-displayfd", "1", "-screen", "0", "1000x700x24"}};
};

} // namespace

TEST(SessionEnd, theTabsAreSavedWhenTheSessionEnds)
{
    saveUntidyRoutes();
    SessionManager manager;
    AppProcess app;
    ASSERT_TRUE(manager.waitForCall("RegisterClient"));
    ASSERT_TRUE(isUp());

    manager.tellClient("QueryEndSession", g_variant_new("(u)", 0));
    ASSERT_TRUE(manager.waitForCall("EndSessionResponse"));
    EXPECT_EQ(savedRoutes(), untidyRoutes) << "the user may still call it off";

    manager.tellClient("EndSession", g_variant_new("(u)", 0));
    ASSERT_TRUE(manager.waitForCall("EndSessionResponse"));
    EXPECT_TRUE(manager.waitForCall("UnregisterClient"));
    EXPECT_EQ(app.process().waitForExit(), 0);
    EXPECT_EQ(savedRoutes(), tidyRoutes);
}

TEST(SessionEnd, theTabsAreSavedWhenTheDisplayServerEnds)
{
    saveUntidyRoutes();
    DemoServiceProcess service;
    DisplayServer server;
    auto environment = service.clientEnvironment();
    environment["DISPLAY"] = server.name();
    AppProcess app({}, environment);
    ASSERT_TRUE(eventually([&] { return !service.requests("/online").empty(); }));
    server.end();
    EXPECT_NE(app.process().waitForExit(), std::nullopt);
    EXPECT_EQ(savedRoutes(), tidyRoutes);
}

TEST(SessionEnd, aWindowThatIsKilledSavesNothing)
{
    saveUntidyRoutes();
    AppProcess app;
    ASSERT_TRUE(isUp());
    const auto windows = Desktop::windows();
    ASSERT_EQ(windows.size(), 1u);

    auto* display = XOpenDisplay(nullptr);
    XKillClient(display, windows.front().id());
    XCloseDisplay(display);
    EXPECT_NE(app.process().waitForExit(), std::nullopt);
    EXPECT_EQ(savedRoutes(), untidyRoutes);
}

} // namespace desktop
