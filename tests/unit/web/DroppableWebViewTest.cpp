#include "web/DroppableWebView.h"

#include "ui/Stage.h"
#include "web/PageScripts.h"
#include "web/WebView.h"

#include <gtest/gtest.h>
#include <map>

using platform::NSDraggingInfo;
using platform::URL;
namespace PageScripts = velmaro::PageScripts;

namespace {

NSDraggingInfo dragging(const std::vector<std::string>& names)
{
    NSDraggingInfo info;
    for (const auto& name : names)
        info.fileURLs.push_back(URL::fileURL("/files/" + name));
    return info;
}

struct FileDrops : Stage, testing::Test {
    FileDrops()
    {
        show(velmaro::WebView{std::make_shared<velmaro::WebModel>()});
        settle();
        webView = platform.webViews().front().lock();
    }

    bool drop(const std::string& name, const std::string& contents)
    {
        platform.fileManager().files["/files/" + name] = contents;
        return webView->draggingDestination->performDragOperation(dragging({name}));
    }

    std::shared_ptr<simulated::SimulatedWebView> webView;
};

} // namespace

TEST_F(FileDrops, takeTheFirstTextFileAndLeaveAllElseToThePage)
{
    struct Case {
        std::vector<std::string> names;
        std::string taken; // empty: nothing
    };
    const Case cases[] = {
        {{"data.csv"}, "data.csv"},
        {{"data.CSV"}, "data.CSV"},
        {{"a.pdf", "b.txt"}, "b.txt"},
        {{"b.txt", "c.csv"}, "b.txt"},
        {{"c.csv", "b.txt"}, "c.csv"},
        {{"data.xlsx"}, ""},
        {{"csv", ".csv", "data.csv.zip", "data.csv~"}, ""},
        {{}, ""},
    };
    for (const auto& [names, taken] : cases) {
        const auto info = dragging(names);
        const auto expected =
            taken.empty() ? std::nullopt : std::optional(URL::fileURL("/files/" + taken));
        EXPECT_EQ(velmaro::acceptableDroppedFile(info), expected) << taken;
        EXPECT_EQ(webView->draggingDestination->takesDrag(info), !taken.empty()) << taken;
    }
}

TEST_F(FileDrops, handTheTextToThePage)
{
    for (const auto& [contents, text] : std::map<std::string, std::string>{
             {"", ""}, {"Zo\u00eb \u2028", "Zo\u00eb \u2028"}, {"Zo\xeb", "Zo\u00eb"}}) {
        EXPECT_TRUE(drop("a \"b\".csv", contents));
        EXPECT_EQ(webView->scripts.back(), PageScripts::importText("a \"b\".csv", text));
    }
    EXPECT_EQ(webView->scripts.size(), 3u);
}

TEST_F(FileDrops, refuseWhatCannotBeRead)
{
    EXPECT_FALSE(webView->draggingDestination->performDragOperation(dragging({"missing.csv"})));
    EXPECT_TRUE(webView->scripts.empty());
}
