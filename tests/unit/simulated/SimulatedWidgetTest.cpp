#include "platform/simulated/SimulatedWidget.h"

#include "FailureRecorder.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/SimulatedRenderer.h"
#include "platform/ui/Views.h"

#include <gtest/gtest.h>

using simulated::SimulatedRenderer;
using simulated::SimulatedWidget;

namespace {

struct Widgets : testing::Test {
    Widgets()
    {
        parent.apply(stack);
        first.apply(a);
        second.apply(b);
        parent.place(first, 0);
        parent.place(second, 1);
    }

    simulated::SimulatedPlatform platform;
    ui::StackNode stack{ui::Axis::vertical, {.spacing = 4}, {}};
    ui::TextNode a{"a", {}};
    ui::TextNode b{"b", {}};
    SimulatedRenderer renderer;
    SimulatedWidget parent{renderer};
    SimulatedWidget first{renderer};
    SimulatedWidget second{renderer};
};

} // namespace

TEST_F(Widgets, areReadInTheOrderInWhichTheyStand)
{
    parent.place(second, 0);
    EXPECT_EQ(parent.describe(),
        "column spacing 4\n"
        "  text \"b\" size 13 regular label\n"
        "  text \"a\" size 13 regular label\n");
    EXPECT_TRUE(parent.showsText("a"));
    EXPECT_FALSE(parent.showsText("c"));
}

TEST_F(Widgets, complainWhenAWidgetWouldLoseItsState)
{
    FailureRecorder failures;
    SimulatedWidget stranger(renderer);
    stranger.place(first, 0);
    parent.remove(first, nullptr);
    parent.place(first, 0);
    parent.remove(first, nullptr);
    parent.place(second, 7);
    EXPECT_EQ(failures.messages.size(), 4u);
}

TEST_F(Widgets, onTheirWayOutStayForTheirTransitionOnly)
{
    ui::GroupNode fading{ui::View()};
    fading.transition = {.fades = true, .movesFrom = {}, .duration = 0.2};
    auto group = std::make_shared<SimulatedWidget>(renderer);
    group->apply(fading);
    parent.place(*group, 1);

    parent.remove(*group, group);
    const auto* leaving = "  group fades duration 0.2 leaving\n";
    EXPECT_NE(parent.describe().find(leaving), std::string::npos);
    EXPECT_EQ(parent.children().size(), 2u);
    EXPECT_FALSE(group->isVisible());

    platform.mainQueue().advance(0.2);
    EXPECT_EQ(parent.describe().find(leaving), std::string::npos);
    EXPECT_EQ(group.use_count(), 1);
}
