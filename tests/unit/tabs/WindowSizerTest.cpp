#include "tabs/WindowSizer.h"

#include "platform/ui/Views.h"
#include "ui/Stage.h"

#include <gtest/gtest.h>

using platform::NSRect;
using platform::NSSize;
using platform::NSWindow;
using velmaro::WindowSizer;

namespace {

// Draws its background anew whenever the field is written.
struct Redrawn {
    std::shared_ptr<ui::Published<int>> count;
    ui::View body() const { return ui::Text(std::to_string((*count)())).background(WindowSizer{}); }
};

struct WindowSizing : Stage, testing::Test {
    simulated::SimulatedWindow& open()
    {
        auto& window = show(Redrawn{redraw});
        settle();
        return window;
    }

    std::shared_ptr<ui::Published<int>> redraw = std::make_shared<ui::Published<int>>(0);
};

} // namespace

TEST_F(WindowSizing, fillsMostOfTheVisibleAreaCentred)
{
    const std::pair<NSRect, NSRect> cases[] = {
        {{{-1920, 40}, {1920, 1040}}, {{-1776, 118}, {1632, 884}}},
        {{{0, 0}, {641, 481}}, {{48.5, 36.5}, {544, 408}}},
    };
    for (const auto& [visibleFrame, frame] : cases) {
        Stage stage;
        stage.platform.addScreen(visibleFrame);
        auto& window = stage.show(ui::Text("").background(WindowSizer{}));
        window.setCollectionBehavior(0x280);
        stage.settle();
        EXPECT_EQ(window.frame(), frame);
        EXPECT_EQ(window.minSize(), frame.size);
        EXPECT_EQ(window.collectionBehavior(), 0x80u) << "full screen is allowed";
    }
}

TEST_F(WindowSizing, happensOncePerWindow)
{
    platform.addScreen({{0, 0}, {1000, 1000}});
    auto& window = open();
    window.setFrame({{0, 0}, {900, 900}}, true, false);
    *redraw = 1;
    settle();
    EXPECT_EQ(window.frame(), (NSRect{{0, 0}, {900, 900}}));
}

TEST_F(WindowSizing, keepsTheWindowAtLeastThatLargeWithItsTopEdgeInPlace)
{
    struct Case {
        const char* name;
        NSSize screen;
        NSRect frame; // as the desktop sets it
        NSRect expected;
    };
    const Case cases[] = {
        {"larger screen", {2000, 1000}, {{10, 20}, {860, 850}}, {{10, 20}, {1700, 850}}},
        {"too low", {1000, 1000}, {{10, 500}, {900, 400}}, {{10, 50}, {900, 850}}},
        {"within the tolerance", {1000, 1000}, {{0, 0}, {849.5, 849.6}}, {{0, 0}, {849.5, 849.6}}},
        {"just beyond it", {1000, 1000}, {{0, 0}, {849.4, 860}}, {{0, 0}, {850, 860}}},
    };
    for (const auto& [name, screen, frame, expected] : cases) {
        Stage stage;
        auto& monitor = stage.platform.addScreen({{0, 0}, {1000, 1000}});
        auto& window = stage.show(ui::Text("").background(WindowSizer{}));
        stage.settle();
        monitor.simulateVisibleFrame({{0, 0}, screen});
        window.simulateFrame(frame);
        EXPECT_EQ(window.frame(), expected) << name;
    }
}

TEST_F(WindowSizing, raisesTheMinimumButNeverLowersIt)
{
    auto& screen = platform.addScreen({{0, 0}, {1000, 1000}});
    auto& window = open();
    for (const double side : {2000, 1000}) {
        screen.simulateVisibleFrame({{0, 0}, {side, side}});
        window.simulateFrame({{0, 0}, {700, 700}});
        EXPECT_EQ(window.minSize(), (NSSize{1700, 1700}));
    }
}

TEST_F(WindowSizing, restsInFullScreenAndAfterTheViewHasGone)
{
    platform.addScreen({{0, 0}, {1000, 1000}});
    auto& window = open();
    window.simulateFullScreen(true);
    window.simulateFrame({{0, 0}, {300, 300}});
    EXPECT_EQ(window.frame().size, (NSSize{300, 300}));

    window.simulateFullScreen(false);
    window.show(ui::Text("other content"));
    window.simulateFrame({{0, 0}, {200, 200}});
    EXPECT_EQ(window.frame().size, (NSSize{200, 200}));
}
