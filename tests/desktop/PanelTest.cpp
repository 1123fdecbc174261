// Whatever stands in front of the window, the program can be ended, and then its tabs are saved.

#include "harness/ReportsPage.h"
#include "harness/SavedSettings.h"
#include "harness/SignedInTest.h"
#include "harness/UserInput.h"

#include <csignal>
#include <gtest/gtest.h>

namespace desktop {

namespace {

bool isOpen(const std::string& title)
{
    return eventually([&] { return Desktop::window(title).has_value(); });
}

struct Panel {
    const char* name;
    bool (*open)(AppProcess& app);
};

const Panel panels[] = {
    {"print panel", [](auto& app) { return ReportsPage::pressPrint(app) && isOpen("Print"); }},
    {"alert", [](auto& app) { return ReportsPage::pressSave(app) && app.shows("Share…"); }},
    {"share panel",
        [](auto& app) {
            if (!ReportsPage::pressSave(app) || !app.shows("Share…"))
                return false;
            UserInput::press("Return");
            return isOpen("Share");
        }},
};

struct Panels : SignedInTest { };

} // namespace

TEST_F(Panels, doNotKeepTheProgram)
{
    bool isEndedByTheWindowManager = false;
    for (const auto& panel : panels) {
        SCOPED_TRACE(panel.name);
        saveTabs({"reports", " fuel "}); // to be tidied up
        app.emplace(service);
        ASSERT_TRUE(panel.open(*app));
        if (isEndedByTheWindowManager)
            app->waitForWindow()->close();
        else
            app->process().signal(SIGTERM);
        isEndedByTheWindowManager = !isEndedByTheWindowManager;
        EXPECT_EQ(app->process().waitForExit(), 0);
        EXPECT_EQ(SavedSettings::read()["vl.open.routes"], nlohmann::json({"reports", "fuel"}));
    }
}

} // namespace desktop
