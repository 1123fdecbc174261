// The processes of pages die at every stage of a tab's life: the window goes on, and the page comes
// back.

#include "harness/AccessibleObject.h"
#include "harness/Files.h"
#include "harness/SavedSettings.h"
#include "harness/SignedInTest.h"
#include "harness/UserInput.h"

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>

namespace desktop {

namespace {

// Before it listens to the program, a process has told the engine its number. Without that the
// engine would end the program.
bool listens(pid_t process)
{
    std::error_code error;
    const auto threads = "/proc/" + std::to_string(process) + "/task";
    const std::filesystem::directory_iterator entries(threads, error);
    return std::any_of(begin(entries), end(entries),
        [](const auto& thread) { return contentsOf(thread.path() / "comm") == "ReceiveQueue\n"; });
}

// Kills that of the page and those that the engine keeps for later pages: which is which cannot be
// told from outside.
bool killWebProcesses(AppProcess& app)
{
    std::vector<pid_t> processes;
    const bool areReady = eventually([&] {
        processes = app.webProcesses();
        return !processes.empty() && std::ranges::all_of(processes, listens);
    });
    for (const auto process : processes)
        kill(process, SIGKILL);
    return areReady;
}

struct Stage {
    const char* name;
    const char* route;
    bool (*reach)(AppProcess& app, const DemoServiceProcess& service);
    const char* panel = nullptr; // a name in what is open then, which Escape closes
};

const Stage stages[] = {
    {"before the first load", "drives", [](auto&, auto&) { return true; }},
    {"while the page loads", "drives",
        [](auto&, auto& service) { return service.isAsked("/online"); }},
    {"under the location picker", "fuel",
        [](auto& app, auto&) {
            return app.waitForPage() && app.press("Find gas stations")
                && app.shows("Use my current location");
        },
        "Use my current location"},
};

using WebProcessDeath = SignedInTest;

} // namespace

TEST_F(WebProcessDeath, atEveryStageLeavesAWindowThatIsUsable)
{
    for (const auto& stage : stages) {
        SCOPED_TRACE(stage.name);
        const Routes routes = {stage.route, "vehicles"};
        saveTabs(routes);
        service.forgetRequests();
        app.emplace(service);
        ASSERT_TRUE(stage.reach(*app, service));

        service.forgetRequests();
        ASSERT_TRUE(killWebProcesses(*app));
        EXPECT_TRUE(service.isAsked("/online/api/" + std::string(stage.route)));
        if (stage.panel) {
            EXPECT_TRUE(app->shows(stage.panel));
            UserInput::press("Escape");
            EXPECT_TRUE(app->loses(stage.panel));
        }
        EXPECT_TRUE(app->waitForPage());
        EXPECT_TRUE(
            eventually([&] { return AccessibleObject::count(app->process().pid(), "tab") == 2; }));

        app->process().signal(SIGTERM);
        EXPECT_EQ(app->process().waitForExit(), 0);
        EXPECT_EQ(SavedSettings::read()["vl.open.routes"], nlohmann::json(routes));
    }
}

} // namespace desktop
