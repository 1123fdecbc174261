#include "RunningApp.h"
#include "web/PageScripts.h"

#include <gtest/gtest.h>

using namespace velmaro;
using ui::command;
using ui::KeyEquivalent;
using ui::shiftCommand;

namespace {

// The application with three tabs, the first of which is shown.
struct Commands : RunningApp, testing::Test {
    Commands()
    {
        launch({{"vl.open.routes", std::vector<std::string>{"drives", "fuel", "reports"}}});
    }

    simulated::SimulatedMenus& menus() { return platform.application().menus(); }
    simulated::SimulatedWebView& page() const { return *webView(); }

    void press(const KeyEquivalent& keys)
    {
        menus().simulateKeys(keys);
        settle();
    }

    enum Ability { disabled, enabled };

    // Of the items that menus list, those that can or cannot be pressed now.
    std::string titles(Ability ability)
    {
        std::string titles;
        for (const auto& menu : menus().menus()) {
            for (const auto& section : menu.sections) {
                for (const auto& item : section) {
                    if (item.isListed && item.isEnabled == (ability == enabled))
                        titles += item.title + "\n";
                }
            }
        }
        return titles;
    }
};

} // namespace

TEST_F(Commands, ofThePageReachThePageThatIsShown)
{
    const std::pair<const char*, std::string> cases[] = {
        {"New Driver", PageScripts::showRouteAndCall("drivers", "addDriver")},
        {"Reload", PageScripts::reloadKeepingRoute()},
        {"Overview", PageScripts::showRoute("dashboard")},
    };
    for (const auto& [title, script] : cases) {
        menus().simulatePress(title);
        EXPECT_EQ(page().scripts.back(), script) << title;
    }
    EXPECT_TRUE(menus().item("Back").isEnabled); // also where there is nothing to go back to
    page().simulateHistory(true, true);
    menus().simulatePress("Back");
    menus().simulatePress("Forward");
    EXPECT_EQ(page().stepsBack, 1);
    EXPECT_EQ(page().stepsForward, 1);
}

TEST_F(Commands, findOpenTheBarAndSearchForWhatWasSearchedLast)
{
    const auto tab = tabs()->activeTab();
    press(command("f"));
    EXPECT_TRUE(tab->findBarVisible());
    EXPECT_TRUE(page().searches.empty());

    tab->findQuery = "ferry";
    for (const bool backwards : {false, true}) {
        tab->findBarVisible = false;
        menus().simulatePress(backwards ? "Find Previous" : "Find Next");
        EXPECT_TRUE(tab->findBarVisible());
        EXPECT_EQ(page().searches.back().configuration.backwards, backwards);
    }
}

TEST_F(Commands, ofTheTabsDoWhatTheirKeysSay)
{
    struct Case {
        KeyEquivalent keys;
        int active;
        std::size_t count;
    };
    const Case cases[] = {
        {command("8"), 0, 3}, // there is no such tab
        {command("2"), 1, 3}, {command("9"), 2, 3}, {shiftCommand("]"), 0, 3},
        {shiftCommand("["), 2, 3}, {command(ui::Key::tab), 0, 3},
        {shiftCommand(ui::Key::tab), 2, 3}, {command(ui::Key::pageUp), 1, 3},
        {command(ui::Key::pageDown), 2, 3}, {command("t"), 3, 4}, {command("1"), 0, 4},
        {command("w"), 0, 3}, {shiftCommand("t"), 0, 4}, {shiftCommand("t"), 0, 4}, // none is left
    };
    for (const auto& [keys, active, count] : cases) {
        press(keys);
        EXPECT_EQ(tabs()->activeIndex(), active) << label(keys);
        EXPECT_EQ(tabs()->tabs().size(), count) << label(keys);
    }
    EXPECT_EQ(tabs()->activeTab()->initialRoute, "drives");
}

TEST_F(Commands, followTheFocusedWindow)
{
    constexpr auto needMore = "Reopen Closed Tab\nActual Size\n";
    EXPECT_EQ(titles(disabled), needMore);

    menus().simulatePress("About Velmaro Online");
    settle();
    EXPECT_EQ(platform.application().window(1).title(), "About Velmaro Online");
    EXPECT_EQ(titles(enabled),
        "About Velmaro Online\nCheck for "
        "Updates…\nPermissions…\nQuit\nUndo\nRedo\nCut\nCopy\nPaste\nSelect All\n"
        "Restore Last Active Tab on Launch\nFull Screen\nMinimize\nKeyboard Shortcuts\n");
    EXPECT_TRUE(menus().item("Copy").leavesKeysToViews);
    press(command("q"));
    EXPECT_EQ(menus().standardCommands, std::vector{ui::StandardCommand::quit});

    platform.application().window().makeKeyAndOrderFront();
    settle();
    EXPECT_EQ(titles(disabled), needMore);
}

TEST_F(Commands, switchTheRestoringOfTheActiveTabAtOnce)
{
    const auto isOn = [this] { return menus().item("Restore Last Active Tab on Launch").isOn; };
    EXPECT_EQ(isOn(), true);
    for (const bool expected : {false, true}) {
        menus().simulatePress("Restore Last Active Tab on Launch");
        settle();
        EXPECT_EQ(isOn(), expected);
        EXPECT_EQ(platform.userDefaults().boolean("vl.restore.active.tab"), expected);
    }
}

TEST_F(Commands, zoomAllPagesAndRememberHowFar)
{
    for (const double zoom : {1.1, 1.25}) {
        press(command("+"));
        EXPECT_EQ(page().settings.pageZoom, zoom);
    }
    press(command("2"));
    EXPECT_EQ(platform.webViews().back().lock()->settings.pageZoom, 1.25);
    EXPECT_EQ(platform.userDefaults().integer("vl.page.zoom"), 125);

    platform.userDefaults().setInteger("vl.page.zoom", -1); // by a careless hand
    settle();
    EXPECT_EQ(page().settings.pageZoom, 0.5);
    EXPECT_FALSE(menus().item("Zoom Out").isEnabled);
    press(command("0"));
    EXPECT_EQ(page().settings.pageZoom, 1);
}

TEST_F(Commands, reopenTheLastTwentyFiveClosedTabsWhereTheyWere)
{
    for (int i = 0; i < 26; ++i) {
        tabs()->newTab("tab " + std::to_string(i));
        tabs()->moveTab(tabs()->activeTab()->id, tabs()->tabs()[1]->id);
        tabs()->closeTab(1);
    }
    settle();
    for (int i = 25; i >= 1; --i) {
        press(shiftCommand("t"));
        EXPECT_EQ(tabs()->activeIndex(), 1);
        EXPECT_EQ(tabs()->activeTab()->initialRoute, "tab " + std::to_string(i));
    }
    EXPECT_FALSE(menus().item("Reopen Closed Tab").isEnabled);
}
