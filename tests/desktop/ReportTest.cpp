// Reports of the demo's pages, as somebody at the desktop saves and prints them.

#include "harness/FakeService.h"
#include "harness/ReportsPage.h"
#include "harness/SavedSettings.h"

#include <fstream>
#include <gtest/gtest.h>

namespace desktop {

namespace {

class Report : public testing::Test {
protected:
    Report() { SavedSettings::write({{"vl.open.routes", {"reports"}}}); }

    DemoServiceProcess service;
    const std::filesystem::path downloads =
        std::filesystem::path(std::getenv("HOME")) / "Downloads";
};

} // namespace

TEST_F(Report, isSavedFromThePageAndShownInItsFolder)
{
    const FakeService fileManager(G_BUS_TYPE_SESSION, "org.freedesktop.FileManager1",
        {{"ShowItems", FakeService::answering()}});
    AppProcess app(service);
    ASSERT_TRUE(ReportsPage::pressSave(app));
    EXPECT_TRUE(app.shows("Share…"));

    const auto file = downloads / "Velmaro report 2026-10.pdf";
    Process facts({"pdfinfo", "-url", file});
    EXPECT_EQ(facts.waitForExit(), 0);
    EXPECT_NE(facts.output().find(service.origin() + "/help"), std::string::npos);
    Process text({"pdftotext", file, "-"});
    EXPECT_EQ(text.waitForExit(), 0);
    EXPECT_NE(text.output().find("Energy costs by month"), std::string::npos);
    // The tab keeps its process, and the engine one more for whatever comes next.
    EXPECT_TRUE(eventually([&] { return app.webProcesses().size() <= 2; }));

    EXPECT_TRUE(app.press("Reveal in Finder"));
    EXPECT_TRUE(fileManager.isCalled(
        "ShowItems(['file://" + downloads.string() + "/Velmaro%20report%202026-10.pdf'],"));
}

TEST_F(Report, thatCannotBeWrittenSaysWhyAndLeavesNothing)
{
    std::ofstream(downloads) << "in the way";
    AppProcess app(service);
    ASSERT_TRUE(ReportsPage::pressSave(app));
    EXPECT_TRUE(app.shows("Couldn't save PDF: Not a directory"));
    EXPECT_TRUE(app.press("OK") && app.loses("OK"));
    EXPECT_TRUE(std::filesystem::is_regular_file(downloads));
}

} // namespace desktop
