// A graphics driver that does not work, on a machine that seems to have a graphics processor.

#include "harness/AccessibleObject.h"
#include "harness/DemoServiceProcess.h"
#include "harness/Desktop.h"
#include "harness/Files.h"
#include "harness/PageOnScreen.h"
#include "harness/UserInput.h"

#include <csignal>
#include <gtest/gtest.h>

namespace desktop {

namespace {

const Process::Environment brokenDriver = {{"LIBGL_DRIVERS_PATH", "/nonexistent"}};
const Process::Environment missingFrames = {
    {"LD_PRELOAD", VELMARO_MISSING_FRAMES},
    {"ASAN_OPTIONS", "detect_leaks=0:verify_asan_link_order=0"},
};

// The application where /dev has a graphics processor in it and nobody has chosen what draws.
class AppOnGraphicsProcessor {
public:
    explicit AppOnGraphicsProcessor(
        const DemoServiceProcess& service, const Process::Environment& changes = {})
        : process_({"bwrap", "--bind", "/", "/", "--proc", "/proc", "--dev", "/dev", "--symlink",
                       "/dev/null", "/dev/dri/renderD128", "--die-with-parent", VELMARO_ONLINE},
            environment(service, changes))
    {
    }
    ~AppOnGraphicsProcessor() { quit(); }

    AppOnGraphicsProcessor(const AppOnGraphicsProcessor&) = delete;
    AppOnGraphicsProcessor& operator=(const AppOnGraphicsProcessor&) = delete;

    bool waitForPage() const
    {
        const auto window = [] { return Desktop::window("Velmaro Online"); };
        return eventually([&] { return window().has_value(); })
            && pageOnScreen(*window(), generousLimit);
    }

    // Waits for the question and answers it, once it takes keys.
    bool answer(const std::string& key) const
    {
        if (!eventually([&] { return asks(); }))
            return false;
        return eventually([&] {
            UserInput::press(key);
            return eventually([&] { return !asks(); }, std::chrono::seconds(1));
        });
    }

    bool asks() const { return AccessibleObject::find(pid(), question).has_value(); }

    int waitForEnd() { return process_.waitForExit().value_or(0); }

    void quit()
    {
        if (const auto app = pid())
            kill(app, SIGTERM);
        process_.waitForExit();
    }

private:
    static constexpr auto question = "Draw without the graphics processor?";

    static Process::Environment environment(
        const DemoServiceProcess& service, const Process::Environment& changes)
    {
        auto result = service.clientEnvironment();
        result.insert(changes.begin(), changes.end());
        result["GSK_RENDERER"] = "";
        return result;
    }

    pid_t pid() const
    {
        const auto found = process_.descendants("velmaro-online");
        return found.empty() ? 0 : found.front();
    }

    Process process_;
};

nlohmann::json rememberedAnswer()
{
    const std::filesystem::path folder = std::getenv("XDG_CONFIG_HOME");
    return nlohmann::json::parse(
        contentsOf(folder / "velmaro-online" / "rendering.json"), nullptr, false);
}

const nlohmann::json software = {{"usesGraphicsProcessor", false}};
const nlohmann::json hardware = {{"usesGraphicsProcessor", true}};

} // namespace

TEST(RendererSafeguard, asksAfterAStartThatEndedInTheDriverAndNeverAgain)
{
    const DemoServiceProcess service;
    {
        AppOnGraphicsProcessor app(service, brokenDriver);
        EXPECT_NE(app.waitForEnd(), 0);
    }
    for (int start = 0; start < 2; ++start) {
        AppOnGraphicsProcessor app(service);
        ASSERT_TRUE(app.waitForPage());
        EXPECT_TRUE(start > 0 || app.answer("Return"));
        EXPECT_TRUE(eventually([] { return rememberedAnswer() == software; }));
        EXPECT_TRUE(eventually([&] { return !app.asks(); }));
    }
}

TEST(RendererSafeguard, asksWhereALoadedPageDoesNotAppearAndRestarts)
{
    const DemoServiceProcess service;
    const auto starts = [&] {
        return service.requests("/online/welcome.php").size() + service.requests("/online").size();
    };
    AppOnGraphicsProcessor app(service, missingFrames);
    ASSERT_TRUE(eventually([&] { return starts() == 1; })); // the question comes some time after
    ASSERT_TRUE(app.answer("Return"));
    EXPECT_TRUE(eventually([&] { return starts() == 2; }));
    EXPECT_TRUE(app.waitForPage());
    EXPECT_EQ(rememberedAnswer(), software);
}

TEST(RendererSafeguard, leavesAMachineAloneOnWhichPagesAppearOrTheUserKnowsBetter)
{
    const DemoServiceProcess service;
    const auto marker =
        std::filesystem::path(std::getenv("XDG_CACHE_HOME")) / "velmaro-online" / "no-page-yet";
    {
        AppOnGraphicsProcessor app(service);
        EXPECT_TRUE(eventually([&] { return exists(marker); }));
        ASSERT_TRUE(app.waitForPage());
        EXPECT_TRUE(eventually([&] { return !exists(marker); }));
    }
    AppOnGraphicsProcessor app(service, missingFrames);
    ASSERT_TRUE(app.answer("Escape"));
    EXPECT_TRUE(eventually([] { return rememberedAnswer() == hardware; }));
}

} // namespace desktop
