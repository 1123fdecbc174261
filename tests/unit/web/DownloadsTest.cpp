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

    std::shared_ptr<SimulatedDownload> start()
    {
        auto download = std::make_shared<SimulatedDownload>();
        auto& webView = *platform.webViews().front().lock();
        webView.navigationDelegate.lock()->navigationResponseDidBecomeDownload(webView, download);
        return download;
    }

    std::shared_ptr<SimulatedDownload> start(const std::string& name)
    {
        auto download = start();
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
    struct Case {
        std::string name;
        std::vector<std::string> present;
        std::string chosen;
    };
    const Case cases[] = {
        {"report.csv", {}, "report.csv"},
        {"report.csv", {"report.csv"}, "report (2).csv"},
        {"report.csv", {"report.csv", "report (2).csv"}, "report (3).csv"},
        {"report.csv", {"report (2).csv"}, "report.csv"},
        {"README", {"README"}, "README (2)"},
        {"a.tar.gz", {"a.tar.gz"}, "a.tar (2).gz"},
        {"data.", {"data."}, "data. (2)"},
        {"100% #1?.csv", {"100% #1?.csv"}, "100% #1? (2).csv"},
        {"caf\u00e9.csv", {"cafe\u0301.csv"}, "caf\u00e9.csv"},
    };
    for (const auto& [name, present, chosen] : cases) {
        simulated::SimulatedPlatform platform;
        for (const auto& file : present)
            platform.fileManager().files["/folder/" + file] = "";
        EXPECT_EQ(
            velmaro::uniqueDestination(URL::fileURL("/folder"), name).path(), "/folder/" + chosen);
    }
}

TEST(ExportFile, isToldByPrefixAndExtension)
{
    for (const auto* name : {"velmaro_export.vlarchive", "Velmaro_Data.JSON", "velmaro_.csv",
             "VELMARO_a.b.ZIP", "velmaro_export (2).vlarchive"})
        EXPECT_TRUE(velmaro::isExportFile(URL::fileURL(downloadsFolder + "/" + name))) << name;
    for (const auto* name : {"velmaro_data.pdf", "export_velmaro.csv", "velmaro.csv", "velmaro_csv",
             "velmaro_data.csv.part", "velmaro_data.csvx", " velmaro_data.csv"})
        EXPECT_FALSE(velmaro::isExportFile(URL::fileURL(downloadsFolder + "/" + name))) << name;
}

TEST_F(Downloads, ofExportsAreConfirmedUnderTheNameTheyGot)
{
    for (const auto* name : {"velmaro_export.vlarchive", "velmaro_export (2).vlarchive"}) {
        finish(*start("velmaro_export.vlarchive"));
        const auto& alert = platform.alerts().front();
        EXPECT_EQ(alert.messageText, "Export saved");
        EXPECT_EQ(
            alert.informativeText, std::string("Saved ") + name + " to your Downloads folder.");
        EXPECT_EQ(alert.buttons, (std::vector<std::string>{"Reveal in Finder", "Done"}));
        platform.alerts().simulateAnswer("Done");
    }
    EXPECT_TRUE(platform.workspace().revealed.empty());

    finish(*start("velmaro_data.csv"));
    platform.alerts().simulateAnswer("Reveal in Finder");
    ASSERT_EQ(platform.workspace().revealed.size(), 1u);
    EXPECT_EQ(platform.workspace().revealed[0],
        std::vector{URL::fileURL(downloadsFolder + "/velmaro_data.csv")});

    finish(*start("invoice.pdf"));
    EXPECT_EQ(platform.alerts().waitingCount(), 0u);
}

TEST_F(Downloads, whoseNameWasTakenMeanwhileAreConfirmedUnderTheNextOne)
{
    const auto first = start("velmaro_data.csv");
    const auto second = start("velmaro_data.csv");
    EXPECT_EQ(first->destination, second->destination);

    finish(*first);
    platform.alerts().simulateAnswer("Done");
    second->simulateAnswer("velmaro_data.csv");
    finish(*second);

    EXPECT_EQ(platform.alerts().front().informativeText,
        "Saved velmaro_data (2).csv to your Downloads folder.");
    EXPECT_EQ(DownloadList::shared().items().size(), 2u);
}

TEST_F(Downloads, withoutAFolderOfTheDesktopGoToTheUsualOne)
{
    platform.fileManager().hasDownloadsDirectory = false;
    EXPECT_EQ(start("a.csv")->destination, URL::fileURL(downloadsFolder + "/a.csv"));
}

TEST_F(Downloads, thatFailAreLoggedAndForgotten)
{
    start()->simulateFailure("Gone before it began");
    const auto download = start("velmaro_data.csv");
    download->simulateFailure("No space left on device");
    download->simulateEnd();
    settle();

    EXPECT_EQ(platform.logLines,
        (std::vector<std::string>{"Velmaro download failed: Gone before it began",
            "Velmaro download failed: No space left on device"}));
    EXPECT_TRUE(platform.alerts().shown.empty());
}

TEST_F(Downloads, areListedWhileThereIsSomethingToShow)
{
    EXPECT_FALSE(press("Downloads"));

    const auto running = start("running.bin");
    const auto failing = start("failing.bin");
    finish(*start("finished.pdf"));
    ASSERT_TRUE(press("Downloads"));
    EXPECT_TRUE(root().showsText("running.bin"));

    running->fractionCompleted = 0.5;
    failing->simulateFailure("No space left on device");
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
