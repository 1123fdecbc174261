// The first seconds of the whole program, as somebody at the desktop meets them.

#include "harness/AppProcess.h"
#include "harness/SavedSettings.h"

#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace desktop {

namespace {

const Process::Environment withoutDisplay = {
    {"DISPLAY", ""},
    {"DBUS_SESSION_BUS_ADDRESS", ""},
};

// Whether the engine has brought the page, which it does a while after showing it, to its cache on
// the disk. A record there begins with the address, as it stands.
bool isOnDisk(const std::string& address)
{
    std::error_code error;
    const std::filesystem::path cache = std::getenv("XDG_CACHE_HOME");
    for (const auto& entry : std::filesystem::recursive_directory_iterator(cache, error)) {
        if (!entry.is_regular_file(error))
            continue;
        std::ostringstream text;
        text << std::ifstream(entry.path()).rdbuf();
        const auto content = text.str();
        const auto found = content.find(address);
        // Addresses further down begin with the same text.
        if (found != std::string::npos && content[found + address.size()] != '/')
            return true;
    }
    return false;
}

} // namespace

TEST(Launch, versionAndHelpNeedNoDisplay)
{
    AppProcess version({"--version"}, withoutDisplay);
    EXPECT_EQ(version.process().waitForExit(), 0);
    EXPECT_NE(version.process().output().find(VELMARO_VERSION), std::string::npos);

    AppProcess help({"--help"}, withoutDisplay);
    EXPECT_EQ(help.process().waitForExit(), 0);
    EXPECT_NE(help.process().output().find("velmaro-online"), std::string::npos);
}

TEST(Launch, aServiceOriginThatIsNoneEndsWithOneLineAndStatusTwo)
{
    for (const char* origin : {
             "nonsense",
             "http://service.example",
             "https://",
             "https:///online",
             "https://service.example/",
             "https://service.example/online",
             "https://service.example?query",
             "https://service.example#fragment",
             "https://service.example:port",
             "https://service.example ",
         }) {
        SCOPED_TRACE(origin);
        const Process::Environment environment = {{"VELMARO_SERVICE_ORIGIN", origin}};
        AppProcess app({}, environment);
        EXPECT_EQ(app.process().waitForExit(), 2);
        const auto errors = app.process().errors();
        EXPECT_NE(errors.find("VELMARO_SERVICE_ORIGIN"), std::string::npos) << errors;
        EXPECT_EQ(errors.find('\n'), errors.size() - 1) << errors;
    }
}

TEST(Launch, theWindowFillsTheMiddleOfTheWorkArea)
{
    DemoServiceProcess service;
    AppProcess app(service);
    const auto window = app.waitForWindow();
    ASSERT_TRUE(window);

    const auto area = Desktop::workArea();
    const int width = static_cast<int>(std::floor(area.width * 0.85));
    const int height = static_cast<int>(std::floor(area.height * 0.85));
    const Rectangle middle = {
        .x = area.x + (area.width - width) / 2,
        .y = area.y + (area.height - height) / 2,
        .width = width,
        .height = height,
    };
    EXPECT_TRUE(eventually([&] { return window->frame() == middle; }))
        << window->frame() << " instead of " << middle;
}

TEST(Launch, theFirstOneWelcomesAndTheNextOnesDoNot)
{
    DemoServiceProcess service;
    {
        AppProcess app(service);
        ASSERT_TRUE(app.waitForPage());
        EXPECT_EQ(service.requests("/online/welcome.php").size(), 1u);
        EXPECT_EQ(service.requests("/online").size(), 0u);
        EXPECT_EQ(SavedSettings::read()["vl.onboarding.shown"], true);
    }
    service.forgetRequests();
    AppProcess app(service);
    ASSERT_TRUE(app.waitForPage());
    EXPECT_EQ(service.requests("/online/welcome.php").size(), 0u);
    EXPECT_EQ(service.requests("/online").size(), 1u);
}

TEST(Launch, theSecondOneAsksWhetherThePageHasChanged)
{
    DemoServiceProcess service;
    SavedSettings::write({{"vl.open.routes", {"drives"}}});
    {
        AppProcess app(service);
        ASSERT_TRUE(app.waitForPage());
        ASSERT_TRUE(eventually([&] { return isOnDisk(service.origin() + "/online"); }));
    }
    service.forgetRequests();
    AppProcess app(service);
    ASSERT_TRUE(app.waitForPage());
    const auto requests = service.requests("/online");
    ASSERT_EQ(requests.size(), 1u);
    EXPECT_TRUE(requests.front().headers.count("if-none-match"));
    EXPECT_EQ(requests.front().status, 304);
}

TEST(Launch, settingsThatCannotBeReadAreKeptAsideAndDoNotStopIt)
{
    SavedSettings::write({{"vl.open.routes", {"drives"}}});
    const auto damaged = SavedSettings::path().string() + ".damaged";
    std::filesystem::resize_file(SavedSettings::path(), 20);

    DemoServiceProcess service;
    AppProcess app(service);
    EXPECT_TRUE(app.waitForPage());
    EXPECT_TRUE(std::filesystem::exists(damaged));
}

} // namespace desktop
