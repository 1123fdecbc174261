// Menu items and their keys in the real window, with a page, with another window and with none.

#include "harness/Files.h"
#include "harness/SavedSettings.h"
#include "harness/SignedInTest.h"
#include "harness/UserInput.h"

#include <fstream>
#include <gtest/gtest.h>

namespace desktop {

namespace {

namespace fs = std::filesystem;

struct Commands : SignedInTest {
    void SetUp() override
    {
        launch({"drives"});
        service.forgetRequests();
    }

    // Opens a menu with its key and chooses an item.
    void choose(const std::string& menu, const std::string& item)
    {
        UserInput::press(menu);
        ASSERT_TRUE(app->press(item)) << item;
    }
};

// Everything of the program that a file in the home folder tells.
std::string filesThatTellOf(const std::string& text)
{
    std::string found;
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        for (const auto& file : filesBelow(fs::path(std::getenv(variable)) / "velmaro-online"))
            found += contentsOf(file).find(text) != std::string::npos ? file.string() + "\n" : "";
    }
    return found;
}

} // namespace

TEST_F(Commands, reachThePageWhileItHasTheKeyboard)
{
    struct Case {
        const char* keys;
        const char* request;
    };
    const Case cases[] = {
        {"ctrl+shift+f", "/online/api/fuel"},
        {"ctrl+shift+v", "/online/api/vehicles"},
        {"ctrl+shift+h", "/online/api/dashboard"},
        {"ctrl+bracketleft", "/online/api/vehicles"},
        {"ctrl+bracketright", "/online/api/dashboard"},
        {"ctrl+r", "/online"},
        {"F5", "/online"},
    };
    for (const auto& [keys, request] : cases) {
        service.forgetRequests();
        UserInput::press(keys);
        EXPECT_TRUE(service.isAsked(request)) << keys;
    }

    choose("alt+h", "What's New");
    EXPECT_TRUE(app->shows("What’s new"));
}

TEST_F(Commands, openAndCloseTabsWithTheKeyboardAlone)
{
    UserInput::press("ctrl+t");
    ASSERT_TRUE(app->shows("New tab"));
    UserInput::press("ctrl+shift+bracketleft");
    UserInput::press("ctrl+shift+bracketright");
    UserInput::press("ctrl+w"); // that which was opened
    EXPECT_TRUE(app->loses("New tab"));
    UserInput::press("ctrl+w");
    EXPECT_EQ(app->process().waitForExit(), 0);
    EXPECT_EQ(SavedSettings::read()["vl.open.routes"], nlohmann::json({"drives"}));
}

TEST_F(Commands, rememberTheZoomAndTheRestoringOfTabs)
{
    UserInput::press("ctrl+plus");
    EXPECT_TRUE(eventually([] { return SavedSettings::read()["vl.page.zoom"] == 110; }));
    UserInput::press("ctrl+0");
    EXPECT_TRUE(eventually([] { return SavedSettings::read()["vl.page.zoom"] == 100; }));
    choose("alt+v", "Restore Last Active Tab on Launch");
    EXPECT_TRUE(eventually([] { return SavedSettings::read()["vl.restore.active.tab"] == false; }));
}

TEST_F(Commands, leaveTheClipboardToWhoHasTheKeyboard)
{
    UserInput::press("ctrl+f");
    ASSERT_TRUE(app->shows("Next match (⌘G)"));
    UserInput::type("Drives");
    UserInput::press("ctrl+a");
    UserInput::press("ctrl+x");
    UserInput::type("no such words");
    UserInput::press("Return");
    ASSERT_TRUE(app->shows("Not found"));
    choose("alt+e", "Select All");
    UserInput::press("ctrl+v"); // in place of all words
    UserInput::press("Return");
    EXPECT_TRUE(app->loses("Not found"));
}

TEST_F(Commands, doNothingToTheTabsBehindAnotherWindow)
{
    UserInput::press("ctrl+question");
    ASSERT_TRUE(eventually([] { return Desktop::windows().size() == 2; }));
    UserInput::press("ctrl+w");
    UserInput::press("Escape");
    ASSERT_TRUE(eventually([] { return Desktop::windows().size() == 1; }));

    choose("F10", "About Velmaro Online");
    ASSERT_TRUE(eventually([] { return Desktop::window("About Velmaro Online").has_value(); }));
    UserInput::press("ctrl+t");
    UserInput::press("ctrl+w");
    EXPECT_TRUE(app->process().isRunning());

    Desktop::window("Velmaro Online")->close();
    EXPECT_EQ(app->process().waitForExit(), 0); // About does not keep it
    EXPECT_EQ(SavedSettings::read()["vl.open.routes"], nlohmann::json({"drives"}));
}

TEST_F(Commands, permissionsCanBeChanged)
{
    const auto permissions = [] {
        std::ifstream file(SavedSettings::path().parent_path() / "permissions.json");
        return nlohmann::json::parse(file, nullptr, false);
    };
    const auto isAllowed = [&] { return permissions().value("locationAllowed", false); };
    choose("F10", "Permissions\u2026");
    ASSERT_TRUE(eventually([&] { // the window may not have the keyboard yet
        UserInput::press("space");
        return eventually(isAllowed, std::chrono::seconds(5));
    }));
    UserInput::press("Escape");
    EXPECT_TRUE(eventually([] { return Desktop::windows().size() == 1; }));
}

TEST_F(Commands, clearAllDataLeavesOneTabOnTheWelcomePageAndNothingOfTheUser)
{
    UserInput::press("ctrl+t");
    ASSERT_TRUE(app->shows("New tab"));
    ASSERT_TRUE(eventually([] { return !filesThatTellOf("Robin").empty(); }));

    choose("alt+h", "Clear All Cache…");
    ASSERT_TRUE(app->shows("Clear all cached data?"));
    UserInput::press("Return");
    EXPECT_TRUE(service.isAsked("/online/welcome.php"));
    EXPECT_TRUE(app->waitForPage());
    EXPECT_TRUE(eventually([] { return filesThatTellOf("Robin").empty(); }))
        << filesThatTellOf("Robin");
    EXPECT_EQ(SavedSettings::read(), nlohmann::json({{"vl.onboarding.shown", true}}));
}

} // namespace desktop
