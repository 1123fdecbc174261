// How the desktop session ends, and what the application makes of it.

#include "harness/AppProcess.h"
#include "harness/FakeService.h"
#include "harness/SavedSettings.h"

#include <algorithm>
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

// The desktop's session manager, which asks its clients before it ends the session.
class SessionManager final : public FakeService {
public:
    SessionManager()
        : FakeService("DBUS_SESSION_BUS_ADDRESS", "org.gnome.SessionManager")
    {
        start();
    }
    ~SessionManager() override { stop(); }

    bool isCalled(const std::string& method, std::ptrdiff_t times = 1) const
    {
        return eventually([&] { return std::ranges::count(calls(), method) >= times; });
    }

    void tellClient(const char* signal)
    {
        invoke([this, signal] {
            emit(clientPath, "org.gnome.SessionManager.ClientPrivate", signal,
                g_variant_new("(u)", 0));
        });
    }

private:
    static constexpr auto clientPath = "/org/gnome/SessionManager/Client1";

    void registerObjects() override
    {
        registerObject("/org/gnome/SessionManager",
            "<node><interface name='org.gnome.SessionManager'>"
            "<method name='RegisterClient'><arg type='s' direction='in'/>"
            "<arg type='s' direction='in'/><arg type='o' direction='out'/></method>"
            "<method name='UnregisterClient'><arg type='o' direction='in'/></method>"
            "</interface></node>");
        registerObject(clientPath,
            "<node><interface name='org.gnome.SessionManager.ClientPrivate'>"
            "<method name='EndSessionResponse'><arg type='b' direction='in'/>"
            "<arg type='s' direction='in'/></method>"
            "<signal name='QueryEndSession'><arg type='u'/></signal>"
            "<signal name='EndSession'><arg type='u'/></signal></interface></node>");
    }

    void handle(const std::string& method, GVariant*, GDBusMethodInvocation* call) override
    {
        note(method);
        g_dbus_method_invocation_return_value(
            call, method == "RegisterClient" ? g_variant_new("(o)", clientPath) : nullptr);
    }
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
    ASSERT_TRUE(manager.isCalled("RegisterClient"));
    ASSERT_TRUE(app.waitForWindow());

    manager.tellClient("QueryEndSession");
    ASSERT_TRUE(manager.isCalled("EndSessionResponse"));
    EXPECT_EQ(savedRoutes(), untidyRoutes) << "the user may still call it off";

    manager.tellClient("EndSession");
    ASSERT_TRUE(manager.isCalled("EndSessionResponse", 2));
    EXPECT_TRUE(manager.isCalled("UnregisterClient"));
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
    ASSERT_TRUE(app.waitForWindow());
    const auto windows = Desktop::windows();
    ASSERT_EQ(windows.size(), 1u);

    auto* display = XOpenDisplay(nullptr);
    XKillClient(display, windows.front().id());
    XCloseDisplay(display);
    EXPECT_NE(app.process().waitForExit(), std::nullopt);
    EXPECT_EQ(savedRoutes(), untidyRoutes);
}

} // namespace desktop
