#include "reports/ReportDownloader.h"

#include "platform/simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

using platform::Data;
using platform::NSError;
using platform::NSPrintInfo;
using simulated::SimulatedWebView;
using velmaro::ReportDownloader;

namespace {

const Data document{std::byte{'%'}, std::byte{'P'}};

// A desktop on which reports are made, with nobody to look at it but the test.
struct ReportStage {
    ReportDownloader& reports() { return ReportDownloader::shared(); }

    std::shared_ptr<SimulatedWebView> view(std::size_t index = 0)
    {
        return platform.webViews().at(index).lock();
    }

    // The document of the job loads and settles.
    void settle(std::size_t index = 0)
    {
        view(index)->simulateFinishNavigation();
        platform.mainQueue().advance(0.35);
    }

    void finishPDF(std::size_t index = 0)
    {
        settle(index);
        view(index)->simulatePDF(document);
        platform.mainQueue().runUntilIdle();
    }

    // What the only alert says, with the job that it is about ended.
    std::string endedWith()
    {
        EXPECT_TRUE(reports().pending.empty());
        for (const auto& webView : platform.webViews())
            EXPECT_TRUE(webView.expired());
        const auto& alert = platform.alerts().front();
        return alert.messageText + ": " + alert.informativeText;
    }

    // Starts a print and brings it to its panel.
    simulated::SimulatedPrintOperation& openPanel()
    {
        reports().printReport("Drives", "<p>");
        settle();
        return *view()->prints.at(0);
    }

    simulated::SimulatedPlatform platform;
};

struct Reports : ReportStage, testing::Test { };

} // namespace

TEST_F(Reports, areLoadedOutOfSightOnTheServicesOrigin)
{
    reports().savePDF("Drives", "october", "<p>PDF");
    reports().printReport("Fuel", "<p>Print");
    for (const std::size_t index : {0, 1}) {
        EXPECT_EQ(view(index)->frame, (platform::NSRect{{0, 0}, {816, 1056}}));
        const auto& content = view(index)->configuration.userContentController;
        EXPECT_TRUE(content.userScripts.empty() && content.scriptMessageHandlers.empty());
        ASSERT_EQ(view(index)->documents.size(), 1u);
        EXPECT_EQ(view(index)->documents[0].html, index == 0 ? "<p>PDF" : "<p>Print");
        EXPECT_EQ(view(index)->documents[0].baseURL->absoluteString(), "https://velmaro.example/");
    }
}

TEST_F(Reports, areSavedAfterTheyHaveSettledAndTheUserIsTold)
{
    for (const std::optional<std::string>& filename : {std::optional<std::string>(), {"october"}}) {
        ReportStage stage;
        const auto saved = filename ? "october.pdf" : std::string("Drives- all.pdf");
        stage.reports().savePDF("Drives: all", filename, "<p>");
        stage.view()->simulateFinishNavigation();
        stage.platform.mainQueue().advance(0.34);
        EXPECT_EQ(stage.platform.mainQueue().pendingCount(), 1u);
        stage.platform.mainQueue().advance(0.01);
        stage.view()->simulatePDF(document);
        stage.platform.mainQueue().runUntilIdle();
        EXPECT_EQ(stage.platform.fileManager().files,
            (std::map<std::string, std::string>{{"/home/user/Downloads/" + saved, "%P"}}));
        EXPECT_EQ(stage.endedWith(), "Report saved: Saved " + saved + " to your Downloads folder.");
    }
}

TEST_F(Reports, thatFailSayWhyAndEnd)
{
    using Fail = void (*)(ReportStage&);
    struct Case {
        bool prints;
        Fail fail;
        const char* text;
    };
    const Case cases[] = {
        {false, [](ReportStage& stage) { stage.view()->simulateFailNavigation("Why"); },
            "Report preview failed to load: Why"},
        {true, [](ReportStage& stage) { stage.view()->simulateFailProvisionalNavigation("Why"); },
            "Print failed to load: Why"},
        {false,
            [](ReportStage& stage) {
                stage.settle();
                stage.view()->simulatePDF(NSError{"Why"});
            },
            "Couldn't generate PDF: Why"},
        {false,
            [](ReportStage& stage) {
                stage.platform.fileManager().writeFailure = NSError{"Why"};
                stage.finishPDF();
            },
            "Couldn't save PDF: Why"},
    };
    for (const auto& [prints, fail, text] : cases) {
        ReportStage stage;
        if (prints)
            stage.reports().printReport("Drives", "<p>");
        else
            stage.reports().savePDF("Drives", {}, "<p>");
        fail(stage);
        stage.platform.mainQueue().advance(1);
        EXPECT_EQ(stage.endedWith(), std::string("Velmaro Online: ") + text);
        EXPECT_EQ(stage.platform.alerts().shown.size(), 1u);
        EXPECT_TRUE(stage.platform.fileManager().files.empty());
    }
}

TEST_F(Reports, areSharedRevealedOrLeftAlone)
{
    auto& window = platform.application().simulateBareWindow({});
    const auto file = platform::URL::fileURL("/home/user/Downloads/Drives.pdf");
    for (const auto* button : {"Done", "Reveal in Finder", "Share…"}) {
        platform.fileManager().files.clear();
        reports().savePDF("Drives", {}, "<p>");
        finishPDF(platform.webViews().size() - 1);
        platform.alerts().simulateAnswer(button);
    }
    EXPECT_EQ(platform.workspace().revealed, (std::vector<std::vector<platform::URL>>{{file}}));
    ASSERT_EQ(platform.shares.size(), 1u);
    EXPECT_EQ(platform.shares[0].items, std::vector{file});
    EXPECT_EQ(platform.shares[0].window, &window);
    EXPECT_EQ(platform.shares[0].rectangle, (platform::NSRect{{399, 580}, {2, 2}}));
}

TEST_F(Reports, arePrintedOnePageWideUnderTheirTitleAndEndInSilence)
{
    platform::NSPrintInfo::shared().topMargin = 5;
    platform.application().simulateBareWindow({});
    auto& operation = openPanel();
    EXPECT_EQ(operation.jobTitle, "Drives");
    const auto& info = operation.printInfo;
    for (const auto margin : {info.topMargin, info.bottomMargin, info.leftMargin, info.rightMargin})
        EXPECT_EQ(margin, 36);
    EXPECT_EQ(info.horizontalPagination, NSPrintInfo::PaginationMode::fit);
    EXPECT_EQ(NSPrintInfo::shared().topMargin, 5) << "others have their own";
    const auto host = platform.offscreenWindows().at(0);
    EXPECT_EQ(host.lock()->frame(), (platform::NSRect{{-20000, -20000}, {816, 1056}}));

    operation.simulateEnd(false);
    EXPECT_TRUE(host.expired());
    EXPECT_TRUE(reports().pending.empty());
    EXPECT_TRUE(platform.webViews()[0].expired());
    EXPECT_TRUE(platform.alerts().shown.empty());
}

TEST_F(Reports, showThePrintPanelOverTheWindowInUse)
{
    using Arrange = void (*)(simulated::SimulatedApplication&);
    const std::pair<Arrange, std::optional<std::size_t>> cases[] = {
        // the window of the panel
        {[](auto& application) { application.window(0).makeKeyAndOrderFront(); }, 0},
        {[](auto& application) { application.simulateDialogBecameKey(); }, 1},
        {[](auto& application) { application.simulateResignActive(); }, 0},
        {[](auto& application) {
             application.simulateResignActive();
             application.window(0).simulateMiniaturize();
             application.window(1).simulateMiniaturize();
         },
            std::nullopt},
    };
    for (const auto& [arrange, window] : cases) {
        ReportStage stage;
        auto& application = stage.platform.application();
        application.simulateBareWindow({});
        application.simulateBareWindow({});
        arrange(application);
        auto& operation = stage.openPanel();
        EXPECT_EQ(operation.window.lock().get(), window ? &application.window(*window) : nullptr);
        operation.simulateEnd(true);
        EXPECT_TRUE(stage.reports().pending.empty());
    }
}

TEST_F(Reports, mayBeGoneBeforeTheyHaveSettled)
{
    reports().savePDF("Drives", {}, "<p>");
    reports().printReport("Drives", "<p>");
    for (const std::size_t index : {0, 1}) {
        view(index)->simulateFinishNavigation();
        view(index)->simulateFailNavigation("The process has died");
    }
    platform.mainQueue().advance(1);
    EXPECT_TRUE(reports().pending.empty());
}
