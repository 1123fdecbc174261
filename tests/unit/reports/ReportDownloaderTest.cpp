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

    EXPECT_EQ(reports().pending.size(), 2u);
    for (const std::size_t index : {0, 1}) {
        EXPECT_EQ(view(index)->frame, (platform::NSRect{{0, 0}, {816, 1056}}));
        const auto& content = view(index)->configuration.userContentController;
        EXPECT_TRUE(content.userScripts.empty() && content.scriptMessageHandlers.empty());
        EXPECT_FALSE(view(index)->settings.customUserAgent);
        ASSERT_EQ(view(index)->documents.size(), 1u);
        EXPECT_EQ(view(index)->documents[0].html, index == 0 ? "<p>PDF" : "<p>Print");
        EXPECT_EQ(view(index)->documents[0].baseURL->absoluteString(), "https://velmaro.example/");
    }
}

TEST_F(Reports, areSavedAfterTheyHaveSettledAndTheUserIsTold)
{
    reports().savePDF("Drives: all", std::nullopt, "<p>");
    view()->simulateFinishNavigation();
    platform.mainQueue().advance(0.34);
    EXPECT_EQ(platform.mainQueue().pendingCount(), 1u);
    platform.mainQueue().advance(0.01);
    view()->simulatePDF(document);
    EXPECT_EQ(reports().pending.size(), 1u) << "the answer may come at any moment";
    platform.mainQueue().runUntilIdle();

    EXPECT_EQ(platform.fileManager().files,
        (std::map<std::string, std::string>{{"/home/user/Downloads/Drives- all.pdf", "%P"}}));
    EXPECT_EQ(endedWith(), "Report saved: Saved Drives- all.pdf to your Downloads folder.");
    EXPECT_EQ(platform.alerts().front().buttons,
        (std::vector<std::string>{"Share…", "Reveal in Finder", "Done"}));
}

TEST_F(Reports, runSideBySideUnderTheNameThePageAskedFor)
{
    reports().savePDF("Drives", "october.pdf", "<p>1");
    reports().savePDF("Fuel", "", "<p>2");
    finishPDF(1);
    finishPDF(0);
    EXPECT_TRUE(platform.fileManager().files.contains("/home/user/Downloads/october.pdf.pdf"));
    EXPECT_TRUE(platform.fileManager().files.contains("/home/user/Downloads/Velmaro Report.pdf"));
    EXPECT_EQ(platform.alerts().waitingCount(), 2u);
}

TEST_F(Reports, thatFailSayWhyAndEnd)
{
    using Step = void (*)(ReportStage&);
    const Step save = [](ReportStage& stage) { stage.reports().savePDF("Drives", {}, "<p>"); };
    const Step print = [](ReportStage& stage) { stage.reports().printReport("Drives", "<p>"); };
    const Step breakOff = [](ReportStage& stage) { stage.view()->simulateFailNavigation("Why"); };
    const Step refuse = [](ReportStage& stage) {
        stage.view()->simulateFailProvisionalNavigation("Why");
    };
    const Step makeNoPDF = [](ReportStage& stage) {
        stage.settle();
        stage.view()->simulatePDF(NSError{"Why"});
    };
    const Step writeNothing = [](ReportStage& stage) {
        stage.platform.fileManager().writeFailure = NSError{"Why"};
        stage.finishPDF();
    };
    struct Case {
        Step start;
        Step fail;
        const char* text;
    };
    const Case cases[] = {
        {save, breakOff, "Velmaro Online: Report preview failed to load: Why"},
        {save, refuse, "Velmaro Online: Report preview failed to load: Why"},
        {print, breakOff, "Velmaro Online: Print failed to load: Why"},
        {print, refuse, "Velmaro Online: Print failed to load: Why"},
        {save, makeNoPDF, "Velmaro Online: Couldn't generate PDF: Why"},
        {save, writeNothing, "Velmaro Online: Couldn't save PDF: Why"},
    };
    for (const auto& [start, fail, text] : cases) {
        ReportStage stage;
        start(stage);
        fail(stage);
        stage.platform.mainQueue().advance(1);
        EXPECT_EQ(stage.endedWith(), text);
        EXPECT_EQ(stage.platform.alerts().shown.size(), 1u);
        EXPECT_TRUE(stage.platform.alerts().shown[0].buttons.empty());
        EXPECT_TRUE(stage.platform.fileManager().files.empty());
    }
}

TEST_F(Reports, areSharedRevealedOrLeftAlone)
{
    auto& window = platform.application().simulateBareWindow({});
    const auto file = platform::URL::fileURL("/home/user/Downloads/Drives.pdf");
    const auto saveAndAnswer = [&](const char* button) {
        platform.fileManager().files.clear();
        reports().savePDF("Drives", {}, "<p>");
        finishPDF(platform.webViews().size() - 1);
        platform.alerts().simulateAnswer(button);
    };

    saveAndAnswer("Done");
    EXPECT_TRUE(platform.shares.empty() && platform.workspace().revealed.empty());
    saveAndAnswer("Reveal in Finder");
    EXPECT_EQ(platform.workspace().revealed, (std::vector<std::vector<platform::URL>>{{file}}));
    saveAndAnswer("Share…");
    platform.application().simulateResignActive();
    saveAndAnswer("Share…");

    ASSERT_EQ(platform.shares.size(), 2u);
    EXPECT_EQ(platform.shares[0].window, &window);
    EXPECT_EQ(platform.shares[0].rectangle, (platform::NSRect{{399, 580}, {2, 2}}));
    EXPECT_EQ(platform.shares[1].window, nullptr);
    EXPECT_EQ(platform.shares[1].rectangle, (platform::NSRect{{0, 0}, {1, 1}}));
    for (const auto& share : platform.shares) {
        EXPECT_EQ(share.items, std::vector{file});
        EXPECT_EQ(share.edge, platform::NSRectEdge::minY);
    }
}

TEST_F(Reports, arePrintedOnePageWideUnderTheirTitle)
{
    platform::NSPrintInfo::shared().topMargin = 5;
    platform.application().simulateBareWindow({});
    auto& operation = openPanel();
    EXPECT_EQ(operation.jobTitle, "Drives");
    const auto& info = operation.printInfo;
    EXPECT_EQ(info.jobDisposition, NSPrintInfo::JobDisposition::spool);
    for (const auto margin : {info.topMargin, info.bottomMargin, info.leftMargin, info.rightMargin})
        EXPECT_EQ(margin, 36);
    EXPECT_EQ(info.horizontalPagination, NSPrintInfo::PaginationMode::fit);
    EXPECT_EQ(info.verticalPagination, NSPrintInfo::PaginationMode::automatic);
    EXPECT_EQ(NSPrintInfo::shared().topMargin, 5) << "others have their own";
    operation.simulateEnd(true);
}

TEST_F(Reports, endTheirPrintInSilenceHoweverItEnds)
{
    for (const bool success : {true, false}) {
        ReportStage stage;
        stage.platform.application().simulateBareWindow({});
        auto& operation = stage.openPanel();
        const auto host = stage.platform.offscreenWindows().at(0);
        EXPECT_EQ(host.lock()->frame(), (platform::NSRect{{-20000, -20000}, {816, 1056}}));
        EXPECT_EQ(stage.view()->window(), host.lock().get());

        operation.simulateEnd(success);

        EXPECT_TRUE(host.expired());
        EXPECT_TRUE(stage.reports().pending.empty());
        EXPECT_TRUE(stage.platform.webViews()[0].expired());
        EXPECT_TRUE(stage.platform.alerts().shown.empty());
    }
}

TEST_F(Reports, showThePrintPanelOverTheWindowInUse)
{
    using Arrange = void (*)(simulated::SimulatedApplication&);
    struct Case {
        Arrange arrange;
        std::optional<std::size_t> window; // that the panel belongs over
    };
    const Case cases[] = {
        {[](auto&) {}, 1},
        {[](auto& application) { application.window(0).makeKeyAndOrderFront(); }, 0},
        {[](auto& application) { application.simulateDialogBecameKey(); }, 1},
        {[](auto& application) { application.simulateResignActive(); }, 0},
        {[](auto& application) {
             application.simulateResignActive();
             application.window(0).simulateMiniaturize();
         },
            1},
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
        EXPECT_TRUE(operation.isRunning());
        EXPECT_EQ(operation.window.lock().get(), window ? &application.window(*window) : nullptr);
        operation.simulateEnd(false);
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
    EXPECT_EQ(platform.alerts().shown.size(), 2u);
    EXPECT_TRUE(platform.offscreenWindows().empty());
}
