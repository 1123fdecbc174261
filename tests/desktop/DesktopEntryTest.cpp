// What the desktop offers beside the application's icon.

#include "harness/AppProcess.h"
#include "harness/InstalledProgram.h"
#include "harness/SavedSettings.h"
#include "harness/UserInput.h"

#include <glibmm/keyfile.h>
#include <glibmm/shell.h>
#include <gtest/gtest.h>

namespace desktop {

namespace {

class DesktopEntry : public testing::Test {
protected:
    DesktopEntry()
    {
        SavedSettings::write({{"vl.open.routes", {"dashboard"}}});
        entry->load_from_file(VELMARO_PACKAGING "/example.velmaro.Online.desktop");
    }

    // Chooses an action as a desktop does that knows nothing but commands.
    void choose(const std::string& action)
    {
        const auto command = entry->get_string("Desktop Action " + action, "Exec");
        Process process(Glib::shell_parse_argv(command));
        EXPECT_EQ(process.waitForExit(), 0) << process.errors();
    }

    // Closes the main window. Whether the application has saved so many tabs then.
    static bool closeWithTabs(std::size_t count)
    {
        if (!eventually([] { return Desktop::window("Velmaro Online").has_value(); }))
            return false;
        Desktop::window("Velmaro Online")->close();
        return eventually([&] {
            return Desktop::windows().empty()
                && SavedSettings::read()["vl.open.routes"].size() == count;
        });
    }

    Glib::RefPtr<Glib::KeyFile> entry = Glib::KeyFile::create();
    DemoServiceProcess service;
};

} // namespace

TEST_F(DesktopEntry, actionsStartTheApplicationAndWaitInOrder)
{
    installProgram(service);
    choose("NewTab");
    choose("LogFuel");
    EXPECT_TRUE(service.isAsked("/online/api/fuel"));
    EXPECT_TRUE(closeWithTabs(2));

    choose("LogChargingSession");
    EXPECT_TRUE(service.isAsked("/online/api/charging"));
    EXPECT_TRUE(closeWithTabs(2));
}

TEST_F(DesktopEntry, actionsReachTheMainWindowBehindAnotherOne)
{
    AppProcess app(service);
    ASSERT_TRUE(app.waitForPage());
    UserInput::press("ctrl+question");
    ASSERT_TRUE(eventually([] { return Desktop::windows().size() == 2; }));
    choose("LogFuel");
    EXPECT_TRUE(service.isAsked("/online/api/fuel"));
}

} // namespace desktop
