#include "web/Downloads.h"

#include "platform/simulated/SimulatedDownload.h"
#include "tabs/DownloadsButton.h"
#include "ui/Stage.h"
#include "web/DownloadList.h"
#include "web/WebView.h"

#include <algorithm>
#include <gtest/gtest.h>

using platform::URL;
using simulated::SimulatedDownload;
using velmaro::DownloadList;

namespace {

const std::string downloadsFolder = "/home/user/Downloads";

// A tab whose page starts downloads, below the button that lists them.
struct Downloads : Stage, testing::Test {
    Downloads() { settle(); }

    std::shared_ptr<SimulatedDownload> start(const std::string& name)
    {
        auto download = std::make_shared<SimulatedDownload>();
        auto& webView = *platform.webViews().front().lock();
        webView.navigationDelegate.lock()->navigationResponseDidBecomeDownload(webView, download);
        download->simulateAnswer(name);
        return download;
    }

    // It comes to its end, with the file where it was decided.
    void finish(SimulatedDownload& download)
    {
        platform.fileManager().files[download.destination->path()] = "";
        download.simulateEnd();
        settle();
    }

    const simulated::SimulatedWidget& root()
    {
        settle();
        return window.content();
    }

    // Presses the button with that help; false when there is none.
    bool press(const std::string& help)
    {
        const bool isPressed = ::press(root(), help);
        settle();
        return isPressed;
    }

    simulated::SimulatedWindow& window = show(ui::VStack{
        {}, velmaro::DownloadsButton{}, velmaro::WebView{std::make_shared<velmaro::WebModel>()}});
};

} // namespace

TEST(UniqueDestination, isTheFirstNameThatNothingBears)
{
    simulated::SimulatedPlatform platform;
    const URL folder = URL::fileURL("/folder");
    const std::vector<std::string> cases[] = {
        {"report.csv", "report (2).csv", "report (3).csv"},
        {"README", "README (2)"},
        {"a.tar.gz", "a.tar (2).gz"},
        {"100% #1?.csv", "100% #1? (2).csv"},
        {"cafe\u0301.csv", "cafe\u0301 (2).csv"},
    };
    for (const auto& names : cases) {
        for (const auto& name : names) {
            const auto path = velmaro::uniqueDestination(folder, names.front()).path();
            EXPECT_EQ(path, "/folder/" + name);
            platform.fileManager().files[path] = "";
        }
    }
}

TEST(ExportFile, isToldByPrefixAndExtension)
{
    for (const auto* name : {"/velmaro_export.vlarchive", "/VELMARO_a.b.ZIP"})
        EXPECT_TRUE(velmaro::isExportFile(URL::fileURL(name))) << name;
    for (const auto* name : {"/velmaro_data.pdf", "/export_velmaro.csv", "/velmaro_data.csvx"})
        EXPECT_FALSE(velmaro::isExportFile(URL::fileURL(name))) << name;
}

TEST_F(Downloads, ofExportsAreConfirmedUnderTheNameTheyGot)
{
    for (const auto* name : {"velmaro_data.csv", "velmaro_data (2).csv"}) {
        finish(*start("velmaro_data.csv"));
        const auto& alert = platform.alerts().front();
        EXPECT_EQ(alert.messageText, "Export saved");
        EXPECT_EQ(
            alert.informativeText, std::string("Saved ") + name + " to your Downloads folder.");
        platform.alerts().simulateAnswer(name[12] == '.' ? "Done" : "Reveal in Finder");
    }
    EXPECT_EQ(platform.workspace().revealed[0],
        std::vector{URL::fileURL(downloadsFolder + "/velmaro_data (2).csv")});

    finish(*start("invoice.pdf"));
    EXPECT_EQ(platform.alerts().waitingCount(), 0u);
}

TEST_F(Downloads, whoseNameWasTakenMeanwhileAreConfirmedUnderTheNextOne)
{
    platform.fileManager().hasDownloadsDirectory = false; // the usual folder takes its place
    const auto download = start("velmaro_data.csv");
    platform.fileManager().files[downloadsFolder + "/velmaro_data.csv"] = "another's";
    download->simulateAnswer("velmaro_data.csv");
    finish(*download);
    EXPECT_EQ(platform.alerts().front().informativeText,
        "Saved velmaro_data (2).csv to your Downloads folder.");
    ASSERT_EQ(DownloadList::shared().items().size(), 1u);
    EXPECT_EQ(DownloadList::shared().items()[0].file.lastPathComponent(), "velmaro_data (2).csv");
}

TEST_F(Downloads, areListedWhileThereIsSomethingToShow)
{
    EXPECT_FALSE(press("Downloads"));

    const auto running = start("running.bin");
    finish(*start("finished.pdf"));
    start("velmaro_data.csv")->simulateFailure("No space left on device");
    EXPECT_EQ(platform.logLines,
        std::vector<std::string>{"Velmaro download failed: No space left on device"});
    EXPECT_TRUE(platform.alerts().shown.empty());
    ASSERT_TRUE(press("Downloads"));
    running->fractionCompleted = 0.5;
    EXPECT_TRUE(root().showsText("running.bin"));
    EXPECT_TRUE(root().showsText("No space left on device"));
    const auto bars = root().findAll<ui::ProgressBarNode>();
    ASSERT_EQ(bars.size(), 2u) << "one on the button and one in the list";
    for (const auto* bar : bars)
        EXPECT_EQ(bar->node<ui::ProgressBarNode>()->fraction, 0.5);

    EXPECT_TRUE(press("Show finished.pdf in its folder"));
    EXPECT_EQ(platform.workspace().revealed.size(), 1u);
    EXPECT_TRUE(press("Clear the list of downloads"));
    EXPECT_FALSE(root().showsText("finished.pdf"));
    EXPECT_TRUE(press("Cancel running.bin"));
    EXPECT_TRUE(root().showsText("cancelled"));
    EXPECT_TRUE(press("Clear the list of downloads"));
    EXPECT_TRUE(root().findAll<ui::ButtonNode>().empty());
}
