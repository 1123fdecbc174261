// The About window on the real desktop.

#include "about/AboutWindowController.h"
#include "harness/AccessibleObject.h"
#include "harness/Desktop.h"
#include "harness/Eventually.h"
#include "platform/appkit/NSApplication.h"
#include "platform/appkit/NSApplicationDelegate.h"
#include "platform/gtk/GtkPlatform.h"
#include "platform/ui/Scene.h"
#include "platform/ui/Views.h"

#include <gtest/gtest.h>
#include <thread>
#include <unistd.h>

namespace desktop {

namespace {

constexpr auto title = "About Velmaro Online";

struct Delegate final : platform::NSApplicationDelegate {
    void applicationWillFinishLaunching(platform::NSApplication&) override { }
    void applicationDidFinishLaunching(platform::NSApplication&) override { start(); }
    bool applicationShouldTerminateAfterLastWindowClosed(platform::NSApplication&) override
    {
        return true;
    }
    bool applicationSupportsSecureRestorableState(platform::NSApplication&) override
    {
        return false;
    }
    bool applicationShouldHandleReopen(platform::NSApplication&, bool) override { return true; }

    std::function<void()> start;
};

// Where nothing composes windows, the toolkit draws a border around its own.
constexpr int border = 5;

bool isInTheMiddle(const Rectangle& frame)
{
    const auto area = Desktop::workArea();
    const auto isCentred = [](int start, int length, int areaStart, int areaLength) {
        return std::abs(2 * start + length - 2 * areaStart - areaLength) <= 2 * border;
    };
    return frame.width - 420 <= 2 * border && frame.height - 520 <= 2 * border
        && isCentred(frame.x, frame.width, area.x, area.width)
        && isCentred(frame.y, frame.height, area.y, area.height);
}

// Runs a program with one empty window, and meanwhile `session` in a thread of its own.
void runProgram(const std::function<void(gtk::GtkPlatform&)>& session)
{
    gtk::GtkPlatform platform(
        {.identifier = "example.velmaro.Online", .address = {}, .geocoder = {}});
    Delegate delegate;
    std::thread user;
    delegate.start = [&] {
        user = std::thread([&] {
            session(platform);
            platform.mainQueue().async([&] { platform.application().terminate(); });
        });
    };
    const ui::Scene scene{
        .identifier = "main",
        .title = "Main",
        .content = [] { return ui::View(ui::Fill(ui::Color::white)); },
    };
    platform.application().run(delegate, scene);
    user.join();
}

} // namespace

TEST(AboutWindow, isOneOfItsSizeInTheMiddleOfTheScreen)
{
    runProgram([](gtk::GtkPlatform& platform) {
        const auto choose = [&] {
            platform.mainQueue().async([] { velmaro::AboutWindowController::shared().show(); });
        };
        const auto isOpen = [] { return Desktop::window(title).has_value(); };
        for (int round = 0; round < 2; ++round) {
            SCOPED_TRACE(round);
            choose();
            choose();
            ASSERT_TRUE(eventually(isOpen));
            const auto window = *Desktop::window(title);
            EXPECT_TRUE(eventually([&] { return isInTheMiddle(window.frame()); }))
                << window.frame();
            EXPECT_EQ(Desktop::windows().size(), 2u);
            EXPECT_TRUE(eventually([] {
                return AccessibleObject::find(getpid(), "App Store for iPhone").has_value();
            }));
            window.close();
            EXPECT_TRUE(eventually([&] { return !isOpen(); }));
        }
    });
}

} // namespace desktop
