#include "ui/Stage.h"
#include "web/FindBar.h"
#include "web/WebModel.h"

#include <gtest/gtest.h>

using namespace velmaro;

namespace {

struct FindTest : Stage, testing::Test {
    FindTest()
    {
        settle();
        model->webView = page;
    }

    const ui::TextFieldNode& field() const
    {
        return *window.content().findAll<ui::TextFieldNode>().at(0)->node<ui::TextFieldNode>();
    }

    bool showsNotFound() const { return window.content().showsText("Not found"); }

    std::shared_ptr<WebModel> model = std::make_shared<WebModel>();
    std::shared_ptr<simulated::SimulatedWebView> page =
        std::make_shared<simulated::SimulatedWebView>(platform::WKWebViewConfiguration());
    simulated::SimulatedWindow& window = show(FindBar{model});
};

} // namespace

TEST_F(FindTest, takesTheKeyboardAndSearchesInBothDirections)
{
    EXPECT_TRUE(field().options.focusesWhenShown);
    field().text.set(" Ferry ");
    EXPECT_TRUE(page->searches.empty()); // typing does not search

    field().options.onSubmit({});
    field().options.onSubmit({.shift = true});
    press(window.content(), "Next match (⌘G)");
    press(window.content(), "Previous match (⇧⌘G)");
    std::vector<bool> directions;
    for (const auto& search : page->searches)
        directions.push_back(search.configuration.backwards);
    ASSERT_EQ(directions, (std::vector{false, true, false, true}));
    EXPECT_EQ(page->searches[0].text, " Ferry "); // as typed
    EXPECT_TRUE(page->searches[0].configuration.wraps);
    EXPECT_FALSE(page->searches[0].configuration.caseSensitive);
}

TEST_F(FindTest, saysNotFoundUntilTheNextAnswerOrAnEmptyQuery)
{
    model->findQuery = "ferry";
    model->find(false);
    page->simulateFindResult(false);
    EXPECT_FALSE(model->findLastResult()); // not before its turn
    settle();
    EXPECT_TRUE(showsNotFound());
    model->findQuery = "";
    settle();
    EXPECT_FALSE(showsNotFound());
    model->find(false);
    EXPECT_EQ(model->findLastResult(), std::nullopt);
    EXPECT_EQ(page->searches.size(), 1u); // the page is not asked for nothing
}

TEST_F(FindTest, closingKeepsTheQueryAndClearsTheSelection)
{
    model->findBarVisible = true;
    model->findQuery = "ferry";
    field().options.onCancel();
    EXPECT_FALSE(model->findBarVisible());
    EXPECT_EQ(model->findQuery(), "ferry");
    EXPECT_EQ(
        page->scripts.back(), "window.getSelection && window.getSelection().removeAllRanges();");
}

TEST_F(FindTest, anAnswerAfterTheModelHasGoneReachesNobody)
{
    auto closed = std::make_shared<WebModel>();
    closed->webView = page;
    closed->findQuery = "ferry";
    closed->find(false);
    closed.reset();
    page->simulateFindResult(true);
    settle();
}
