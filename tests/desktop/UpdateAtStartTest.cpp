// The whole program, which looks for newer versions by itself.

#include "harness/AccessibleObject.h"
#include "harness/AppProcess.h"

#include <csignal>
#include <fstream>
#include <gtest/gtest.h>

namespace desktop {

namespace {

namespace files = std::filesystem;

constexpr auto windowTitle = "Software Update";

std::string textOf(const files::path& path)
{
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

TEST(UpdateAtStart, isShownAndSkippedAsTheUserWishes)
{
    DemoServiceProcess service;
    auto environment = service.clientEnvironment();
    environment["VELMARO_UPDATE_FEED"] = service.origin() + "/demo/updates/newer/appcast.xml";
    environment["VELMARO_UPDATE_KEY"] = textOf(VELMARO_DEMO_UPDATES "/public-key.txt");
    environment["VELMARO_UPDATE_KEY"].pop_back(); // the end of the line
    const auto settings =
        files::path(std::getenv("XDG_CONFIG_HOME")) / "velmaro-online" / "updates.json";
    files::create_directories(settings.parent_path());
    std::ofstream(settings) << R"({"checksAutomatically": true})";

    AppProcess app({}, environment);
    const auto press = [&](const std::string& name) {
        std::optional<AccessibleObject> control;
        EXPECT_TRUE(eventually([&] {
            control = AccessibleObject::find(app.process().pid(), name);
            return control.has_value();
        })) << name;
        return control && control->activate();
    };
    ASSERT_TRUE(eventually([] { return Desktop::window(windowTitle).has_value(); }));
    EXPECT_TRUE(press("Skip This Version"));
    EXPECT_TRUE(eventually([] { return !Desktop::window(windowTitle); }));
    app.process().signal(SIGTERM);
    EXPECT_EQ(app.process().waitForExit(), 0);
    EXPECT_NE(textOf(settings).find("900000"), std::string::npos) << textOf(settings);
    EXPECT_NE(textOf(settings).find("lastCheck"), std::string::npos);
}

TEST(UpdateAtStart, aPlainHttpFeedIsRefusedAtOnce)
{
    const Process::Environment environment{
        {"VELMARO_UPDATE_FEED", "http://velmaro.example/appcast.xml"}};
    AppProcess app({}, environment);
    EXPECT_EQ(app.process().waitForExit(), 2);
    EXPECT_NE(app.process().errors().find("VELMARO_UPDATE_FEED is not an https address"),
        std::string::npos);
}

} // namespace desktop
