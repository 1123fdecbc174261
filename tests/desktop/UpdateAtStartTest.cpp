// The whole program, which looks for newer versions by itself.

#include "harness/AppProcess.h"
#include "harness/Files.h"

#include <csignal>
#include <fstream>
#include <gtest/gtest.h>

namespace desktop {

namespace {

namespace files = std::filesystem;

constexpr auto windowTitle = "Software Update";

} // namespace

TEST(UpdateAtStart, isShownAndSkippedAsTheUserWishes)
{
    DemoServiceProcess service;
    auto environment = service.clientEnvironment();
    environment["VELMARO_UPDATE_FEED"] = service.origin() + "/demo/updates/newer/appcast.xml";
    environment["VELMARO_UPDATE_KEY"] = contentsOf(VELMARO_DEMO_UPDATES "/public-key.txt");
    environment["VELMARO_UPDATE_KEY"].pop_back(); // the end of the line
    const auto settings =
        files::path(std::getenv("XDG_CONFIG_HOME")) / "velmaro-online" / "updates.json";
    files::create_directories(settings.parent_path());
    std::ofstream(settings) << R"({"checksAutomatically": true})";

    AppProcess app({}, environment);
    ASSERT_TRUE(eventually([] { return Desktop::window(windowTitle).has_value(); }));
    EXPECT_TRUE(app.press("Skip This Version"));
    EXPECT_TRUE(eventually([] { return !Desktop::window(windowTitle); }));
    app.process().signal(SIGTERM);
    EXPECT_EQ(app.process().waitForExit(), 0);
    EXPECT_NE(contentsOf(settings).find("900000"), std::string::npos) << contentsOf(settings);
    EXPECT_NE(contentsOf(settings).find("lastCheck"), std::string::npos);
}

} // namespace desktop
