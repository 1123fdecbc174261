#include "platform/simulated/SimulatedWidget.h"

#include "FailureRecorder.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/SimulatedRenderer.h"
#include "platform/ui/Views.h"

#include <gtest/gtest.h>

using simulated::SimulatedRenderer;
using simulated::SimulatedWidget;

TEST(SimulatedWidget, complainsWhenAWidgetWouldLoseItsState)
{
    FailureRecorder failures;
    const simulated::SimulatedPlatform platform;
    SimulatedRenderer renderer;
    SimulatedWidget parent{renderer}, first{renderer}, second{renderer}, stranger{renderer};
    const ui::StackNode stack{ui::Axis::vertical, {}, {}};
    const ui::TextNode text{"a", {}};
    parent.apply(stack);
    for (auto* child : {&first, &second}) {
        child->apply(text);
        parent.place(*child, 0);
    }
    EXPECT_TRUE(failures.messages.empty());
    stranger.place(first, 0);
    parent.remove(first, nullptr);
    parent.place(first, 0);
    parent.remove(first, nullptr);
    parent.place(second, 7);
    EXPECT_EQ(failures.messages.size(), 4u);
}
