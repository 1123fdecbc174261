#include "tabs/TabBar.h"

#include "tabs/TabBarItem.h"
#include "ui/Stage.h"

#include <gtest/gtest.h>

using namespace velmaro;

namespace {

struct TabBarTest : Stage, testing::Test {
    TabBarTest()
    {
        app->newTab("drives");
        app->newTab("fuel");
        app->activeIndex = 0;
        settle();
    }

    // The items' groups, which carry what a person does to them.
    std::vector<const ui::GroupNode*> items() const
    {
        std::vector<const ui::GroupNode*> groups;
        for (const auto* widget : window.content().findAll<ui::GroupNode>()) {
            const auto* group = widget->node<ui::GroupNode>();
            if (!group->dragPayload.empty())
                groups.push_back(group);
        }
        return groups;
    }

    // Those that can be pressed now, by what they say they do.
    std::vector<const ui::ButtonNode*> buttons(const std::string& help) const
    {
        std::vector<const ui::ButtonNode*> found;
        for (const auto* widget : window.content().findAll<ui::ButtonNode>()) {
            if (widget->node<ui::ButtonNode>()->options.help == help)
                found.push_back(widget->node<ui::ButtonNode>());
        }
        return found;
    }

    const ui::GroupNode& named(const std::string& title) const
    {
        for (const auto* widget : window.content().findAll<ui::GroupNode>()) {
            const auto* group = widget->node<ui::GroupNode>();
            if (group->accessibility.role == ui::Accessibility::Role::tab
                && group->accessibility.label == title)
                return *group;
        }
        throw std::runtime_error("no tab is called " + title);
    }

    void setTitles(std::vector<std::string> titles)
    {
        for (std::size_t i = 0; i < titles.size(); ++i)
            app->tabs()[i]->pageTitle = titles[i];
        settle();
    }

    std::shared_ptr<TabbedAppModel> app = TabbedAppModel::make();
    simulated::SimulatedWindow& window = show(TabBar{app});
};

} // namespace

TEST(TabTitle, losesTheServicesNameAtItsEndOnceAndIsNeverEmpty)
{
    struct Case {
        const char* pageTitle;
        const char* title;
    };
    const Case cases[] = {
        {"Drives — Velmaro Online", "Drives"},
        {"Drives - Velmaro Online", "Drives"},
        {"Drives | Velmaro Online", "Drives"},
        {" - Velmaro Online", "Velmaro Online"},
        {"", "Velmaro Online"},
        {"Velmaro Online - Drives", "Velmaro Online - Drives"},
        {"Drives - velmaro online", "Drives - velmaro online"},
        {"Drives - Velmaro Online - Velmaro Online", "Drives - Velmaro Online"},
        {"Drives - Velmaro Online ", "Drives - Velmaro Online "},
    };
    for (const auto& [pageTitle, title] : cases)
        EXPECT_EQ(tabTitle(pageTitle), title) << pageTitle;
}

TEST_F(TabBarTest, aClickSelectsAndOnlyTheActiveOrHoveredTabCanBeClosed)
{
    setTitles({"A", "B", "C"});
    EXPECT_EQ(buttons("Close Tab").size(), 1u);

    named("C").onHover(true);
    settle();
    EXPECT_EQ(buttons("Close Tab").size(), 2u);
    named("C").onHover(false);
    named("B").onTapGesture();
    settle();
    EXPECT_EQ(app->activeIndex(), 1);
    EXPECT_TRUE(named("B").accessibility.isSelected);
    EXPECT_EQ(buttons("Close Tab").size(), 1u);

    app->keepOnlyActiveTab();
    settle();
    EXPECT_TRUE(buttons("Close Tab").empty());
}

TEST_F(TabBarTest, hoveringFollowsItsTabWhenTheOrderChanges)
{
    setTitles({"A", "B", "C"});
    named("C").onHover(true);
    app->moveTab(app->tabs()[2]->id, app->tabs()[0]->id);
    settle();
    buttons("Close Tab").front()->action(); // that of the first in the strip, which is C now
    settle();
    EXPECT_EQ(app->tabs().size(), 2u);
    EXPECT_EQ(app->tabs().front()->pageTitle(), "A");
}

TEST_F(TabBarTest, theMiddleButtonClosesATabButNotTheLastOne)
{
    setTitles({"A", "B", "C"});
    named("B").onMiddleClick();
    settle();
    EXPECT_EQ(app->tabs().size(), 2u);
    EXPECT_EQ(app->tabs()[1]->pageTitle(), "C");
    app->closeTab(1);
    settle();
    EXPECT_FALSE(named("A").onMiddleClick);
}

TEST_F(TabBarTest, dropsMoveTabsAndNothingElse)
{
    setTitles({"A", "B", "C"});
    const auto payload = items()[0]->dragPayload;
    EXPECT_FALSE(items()[2]->onDrop({}));
    EXPECT_FALSE(items()[2]->onDrop({"https://velmaro.example"}));
    EXPECT_TRUE(items()[2]->onDrop({payload, "ignored"}));
    settle();
    EXPECT_EQ(app->tabs()[0]->pageTitle(), "B");
    EXPECT_EQ(app->tabs()[1]->pageTitle(), "A");
    EXPECT_EQ(app->activeIndex(), 1);
}

TEST_F(TabBarTest, thePlusOpensATabAtTheEndAndScrollsToIt)
{
    buttons("New Tab").front()->action();
    settle();
    EXPECT_EQ(app->tabs().size(), 4u);
    EXPECT_EQ(app->activeTab()->currentRoute(), "newtab");
    EXPECT_TRUE(items().back()->isScrolledToVisible);
}
