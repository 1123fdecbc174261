#include "web/TabContent.h"

#include "ui/Stage.h"

#include <gtest/gtest.h>

namespace {

struct TabContents : Stage, testing::Test {
    // Progress as shown; absent when there is no line.
    std::optional<double> progress() const
    {
        const auto lines = window->content().findAll<ui::ProgressBarNode>();
        return lines.empty() ? std::nullopt
                             : std::optional(lines[0]->node<ui::ProgressBarNode>()->fraction);
    }

    // Splashes in the tree: 1 while it covers the page.
    std::size_t splashes() const
    {
        std::size_t count = 0;
        for (const auto* fill : window->content().findAll<ui::FillNode>())
            count += fill->node<ui::FillNode>()->color == ui::Color::windowBackground;
        return count;
    }

    void open()
    {
        window = &show(velmaro::TabContent{model});
        settle();
    }

    std::shared_ptr<velmaro::WebModel> model = std::make_shared<velmaro::WebModel>("fuel");
    simulated::SimulatedWindow* window = nullptr;
};

} // namespace

TEST_F(TabContents, hideThePageUntilItHasATitle)
{
    open();
    EXPECT_EQ(splashes(), 1u);
    model->pageTitle = "Fuel";
    settle();
    EXPECT_EQ(splashes(), 0u);
    model->pageTitle = "";
    settle();
    EXPECT_EQ(splashes(), 1u);
}

TEST_F(TabContents, showALineOnlyWhileLoadingWhichRedrawsNothingElse)
{
    open();
    EXPECT_EQ(progress(), std::nullopt);
    model->isLoading = true;
    settle();
    window->renderer().counts = {};
    model->estimatedProgress = 0.7;
    settle();
    EXPECT_EQ(progress(), 0.7);
    const auto& counts = window->renderer().counts;
    EXPECT_EQ(counts.made + counts.placed + counts.removed, 0);
    EXPECT_LE(counts.applied, 2); // the line and its frame
    model->isLoading = false;
    settle();
    EXPECT_EQ(progress(), std::nullopt);

    window->renderer().counts = {};
    model->setUser(velmaro::UserIdentity{"Ada", "Moor"}); // stored, as the zoom is
    settle();
    EXPECT_EQ(counts.applied, 0);
    platform.userDefaults().setInteger("vl.page.zoom", 150);
    settle();
    EXPECT_GT(counts.applied, 0);
}
