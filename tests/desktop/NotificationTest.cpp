// What pages have to tell, from the service's page to the desktop's notifications and back.

#include "harness/AppProcess.h"
#include "harness/FakeNotificationDaemon.h"
#include "harness/InstalledProgram.h"
#include "harness/SavedSettings.h"
#include "harness/UserInput.h"

#include <gtest/gtest.h>

namespace desktop {

namespace {

class NotificationTest : public testing::Test {
protected:
    NotificationTest() { SavedSettings::write({{"vl.open.routes", {"dashboard"}}}); }

    // Goes through the controls of the dashboard, links and reminders, and presses the reminders.
    static bool pressReminder(const FakeNotificationDaemon& daemon)
    {
        const auto count = daemon.shown().size();
        for (int control = 0; control < 60; ++control) {
            UserInput::press("Tab");
            UserInput::press("space");
            if (eventually(
                    [&] { return daemon.shown().size() > count; }, std::chrono::milliseconds(300)))
                return true;
        }
        return false;
    }

    DemoServiceProcess service;
};

} // namespace

TEST_F(NotificationTest, aReminderIsShownAfterSigningInAndLeadsToItsPage)
{
    installProgram(service);
    FakeNotificationDaemon daemon;
    {
        AppProcess app(service);
        ASSERT_TRUE(app.waitForPage());
        const auto window = *app.waitForWindow();
        app.pressFirstControlOfPage(); // signs in
        ASSERT_TRUE(app.press("Allow"));
        ASSERT_TRUE(pressReminder(daemon));

        const auto first = daemon.shown().back();
        EXPECT_TRUE(first.title.starts_with("Service for ")) << first.title;
        EXPECT_TRUE(first.body.starts_with("Due on ")) << first.body;
        EXPECT_EQ(first.replaced, 0u);
        EXPECT_EQ(first.hints,
            "{'desktop-entry': <'example.velmaro.Online'>, 'sound-name': <'message-new-instant'>}");

        ASSERT_TRUE(pressReminder(daemon)); // another, for later
        EXPECT_EQ(daemon.shown()[1].replaced, 0u);

        service.forgetRequests();
        daemon.click(first.number);
        EXPECT_TRUE(service.isAsked("/online/api/vehicles"));
        EXPECT_TRUE(app.shows("Vehicles")); // the tab, named after the page has told its route
        window.close();
        EXPECT_EQ(app.process().waitForExit(), 0);
    }
    EXPECT_EQ(SavedSettings::read()["vl.open.routes"], nlohmann::json({"vehicles"}));
    EXPECT_TRUE(SavedSettings::read().contains("vl.user.identity"));

    SavedSettings::write({{"vl.open.routes", {"dashboard"}}});
    service.forgetRequests();
    daemon.click(daemon.shown()[1].number); // starts the application
    EXPECT_TRUE(service.isAsked("/online/api/vehicles"));
    ASSERT_TRUE(eventually([] { return Desktop::window("Velmaro Online").has_value(); }));
    Desktop::window("Velmaro Online")->close();
    EXPECT_TRUE(eventually([] { return Desktop::windows().empty(); }));
}

} // namespace desktop
