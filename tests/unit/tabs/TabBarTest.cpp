#include "tabs/TabBar.h"

#include "tabs/TabBarItem.h"
#include "ui/Stage.h"

#include <gtest/gtest.h>

using namespace velmaro;

namespace {

struct TabBarTest : Stage, testing::Test {
    TabBarTest()
    {
        app->newTab();
        app->newTab();
        app->activeIndex = 0;
        for (std::size_t i = 0; i < 3; ++i)
            app->tabs()[i]->pageTitle = std::string(1, "ABC"[i]);
        settle();
    }

    // The items' groups, which carry what a person does to them.
    std::vector<const ui::GroupNode*> items() const
    {
        return groups([](const auto& group) { return !group.dragPayload.empty(); });
    }

    const ui::GroupNode& named(const std::string& title) const
    {
        return *groups([&](const auto& group) { return group.accessibility.label == title; }).at(0);
    }

    std::size_t closeButtons() const
    {
        std::size_t count = 0;
        for (const auto* widget : window.content().findAll<ui::ButtonNode>())
            count += widget->node<ui::ButtonNode>()->options.help == "Close Tab";
        return count;
    }

    std::string titles() const
    {
        std::string titles;
        for (const auto& tab : app->tabs())
            titles += tab->pageTitle();
        return titles;
    }

    template <class Predicate> std::vector<const ui::GroupNode*> groups(Predicate isWanted) const
    {
        std::vector<const ui::GroupNode*> found;
        for (const auto* widget : window.content().findAll<ui::GroupNode>()) {
            if (isWanted(*widget->node<ui::GroupNode>()))
                found.push_back(widget->node<ui::GroupNode>());
        }
        return found;
    }

    std::shared_ptr<TabbedAppModel> app = TabbedAppModel::make();
    simulated::SimulatedWindow& window = show(TabBar{app});
};

} // namespace

TEST(TabTitle, losesTheServicesNameAtItsEndOnceAndIsNeverEmpty)
{
    const std::pair<const char*, const char*> cases[] = {
        {"Drives — Velmaro Online", "Drives"},
        {"Drives - Velmaro Online", "Drives"},
        {"Drives | Velmaro Online", "Drives"},
        {" - Velmaro Online", "Velmaro Online"},
        {"Drives - velmaro online", "Drives - velmaro online"},
        {"Drives - Velmaro Online - Velmaro Online", "Drives - Velmaro Online"},
    };
    for (const auto& [pageTitle, title] : cases)
        EXPECT_EQ(tabTitle(pageTitle), title) << pageTitle;
}

TEST_F(TabBarTest, aClickSelectsAndOnlyTheActiveOrHoveredTabCanBeClosed)
{
    named("B").onTapGesture();
    settle();
    EXPECT_EQ(app->activeIndex(), 1);
    EXPECT_TRUE(named("B").accessibility.isSelected);
    EXPECT_EQ(closeButtons(), 1u);
    named("C").onHover(true);
    settle();
    EXPECT_EQ(closeButtons(), 2u);

    app->closeTab(2);
    app->keepOnlyActiveTab();
    settle();
    EXPECT_EQ(titles(), "B");
    EXPECT_FALSE(app->canReopenTab()) << "those of somebody who has signed out";
    EXPECT_EQ(closeButtons(), 0u);
    EXPECT_FALSE(named("B").onMiddleClick);
}

TEST_F(TabBarTest, hoveringFollowsItsTabWhenTheOrderChanges)
{
    named("C").onHover(true);
    app->moveTab(app->tabs()[2]->id, app->tabs()[0]->id);
    settle();
    press(window.content(), "Close Tab"); // that of the first in the strip, which is C now
    EXPECT_EQ(titles(), "AB");
}

TEST_F(TabBarTest, dropsMoveTabsAndNothingElseAndTheMiddleButtonCloses)
{
    for (const auto& text : {std::string("https://velmaro.example"), items()[0]->dragPayload + "0"})
        EXPECT_FALSE(items()[2]->onDrop({text}));
    EXPECT_TRUE(items()[2]->onDrop({items()[0]->dragPayload, "ignored"}));
    EXPECT_EQ(titles(), "BAC");
    named("B").onMiddleClick();
    EXPECT_EQ(titles(), "AC");
}

TEST_F(TabBarTest, thePlusOpensATabAtTheEndAndScrollsToIt)
{
    press(window.content(), "New Tab");
    settle();
    EXPECT_EQ(app->tabs().size(), 4u);
    EXPECT_EQ(app->activeTab()->currentRoute(), "newtab");
    EXPECT_TRUE(items().back()->isScrolledToVisible);
}
