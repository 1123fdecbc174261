#include "ui/Stage.h"
#include "web/FindBar.h"
#include "web/WebModel.h"

#include <gtest/gtest.h>

using namespace velmaro;
using platform::NSTextCommand;

namespace {

struct FindTest : Stage, testing::Test {
    FindTest()
    {
        settle();
        field = platform.textFields().back().lock();
    }

    bool showsNotFound() const { return window.content().showsText("Not found"); }

    std::shared_ptr<WebModel> model = std::make_shared<WebModel>();
    std::shared_ptr<simulated::SimulatedWebView> page =
        std::make_shared<simulated::SimulatedWebView>(platform::WKWebViewConfiguration());
    simulated::SimulatedWindow& window = show(FindBar{model});
    std::shared_ptr<simulated::SimulatedTextField> field;
};

} // namespace

TEST_F(FindTest, takesTheKeyboardAndSearchesInBothDirections)
{
    model->webView = page;
    EXPECT_TRUE(field->isFirstResponder);
    field->simulateTyping(" Ferry ");
    EXPECT_TRUE(page->searches.empty()); // typing does not search

    EXPECT_TRUE(field->simulateCommand(NSTextCommand::insertNewline));
    EXPECT_TRUE(field->simulateCommand(NSTextCommand::insertNewline, {.shift = true}));
    EXPECT_TRUE(press(window.content(), "Next match (⌘G)"));
    EXPECT_TRUE(press(window.content(), "Previous match (⇧⌘G)"));
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
    model->webView = page;
    model->findQuery = "ferry";
    model->find(false);
    page->simulateFindResult(false);
    EXPECT_FALSE(model->findLastResult()); // not before its turn
    settle();
    EXPECT_TRUE(showsNotFound());

    field->simulateTyping("ferr");
    settle();
    EXPECT_TRUE(showsNotFound()); // typing does not clear it
    model->findQuery = "";
    settle();
    EXPECT_FALSE(showsNotFound());
    model->find(false);
    EXPECT_EQ(model->findLastResult(), std::nullopt);
    EXPECT_EQ(page->searches.size(), 1u); // the page is not asked for nothing
}

TEST_F(FindTest, closingKeepsTheQueryAndClearsTheSelection)
{
    model->webView = page;
    model->findBarVisible = true;
    model->findQuery = "ferry";
    model->findLastResult = false;
    EXPECT_TRUE(field->simulateCommand(NSTextCommand::cancelOperation));
    EXPECT_FALSE(model->findBarVisible());
    EXPECT_EQ(model->findLastResult(), std::nullopt);
    EXPECT_EQ(model->findQuery(), "ferry");
    EXPECT_EQ(
        page->scripts.back(), "window.getSelection && window.getSelection().removeAllRanges();");
}

TEST_F(FindTest, withoutAPageOrWithAModelThatHasGoneNothingHappens)
{
    model->findQuery = "ferry";
    model->findLastResult = true;
    model->find(false);
    EXPECT_EQ(model->findLastResult(), true);

    auto closed = std::make_shared<WebModel>();
    closed->webView = page;
    closed->findQuery = "ferry";
    closed->find(false);
    closed.reset();
    page->simulateFindResult(true);
    settle();
}
