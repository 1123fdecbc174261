#include "web/DroppableWebView.h"

#include "ui/Stage.h"
#include "web/PageScripts.h"
#include "web/WebView.h"

#include <gtest/gtest.h>

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
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{"data.CSV"}, "data.CSV"},
        {{"a.pdf", "b.txt", "c.csv"}, "b.txt"},
        {{"csv", ".csv", "data.csv.zip", "data.csv~"}, nullptr},
        {{}, nullptr},
    };
    for (const auto& [names, taken] : cases) {
        const auto file = velmaro::acceptableDroppedFile(dragging(names));
        EXPECT_EQ(file ? file->lastPathComponent() : "", taken ? taken : "");
        EXPECT_EQ(webView->draggingDestination->takesDrag(dragging(names)), taken != nullptr);
    }
}

TEST_F(FileDrops, handTheTextToThePageAndRefuseWhatCannotBeRead)
{
    for (const auto* contents : {"Zo\u00eb", "Zo\xeb"}) {
        EXPECT_TRUE(drop("a \"b\".csv", contents));
        EXPECT_EQ(webView->scripts.back(), PageScripts::importText("a \"b\".csv", "Zo\u00eb"));
    }
    EXPECT_FALSE(webView->draggingDestination->performDragOperation(dragging({"missing.csv"})));
    EXPECT_EQ(webView->scripts.size(), 2u);
}
