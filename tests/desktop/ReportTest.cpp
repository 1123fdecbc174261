// Reports of the demo's pages, as somebody at the desktop saves and prints them.

#include "harness/FakeService.h"
#include "harness/ReportsPage.h"
#include "harness/SavedSettings.h"

#include <fstream>
#include <gtest/gtest.h>

namespace desktop {

namespace {

// The desktop's file manager; it notes what it is to show.
class FakeFileManager final : public FakeService {
public:
    FakeFileManager()
        : FakeService("DBUS_SESSION_BUS_ADDRESS", "org.freedesktop.FileManager1")
    {
        start();
    }
    ~FakeFileManager() override { stop(); }

private:
    void registerObjects() override
    {
        registerObject("/org/freedesktop/FileManager1",
            R"(<node><interface name="org.freedesktop.FileManager1">
                 <method name="ShowItems">
                   <arg direction="in" type="as"/><arg direction="in" type="s"/>
                 </method>
               </interface></node>)");
    }

    void handle(const std::string&, GVariant* arguments, GDBusMethodInvocation* invocation) override
    {
        g_autofree const char** addresses = nullptr;
        g_variant_get(arguments, "(^a&ss)", &addresses, nullptr);
        for (auto address = addresses; *address; ++address)
            note(*address);
        g_dbus_method_invocation_return_value(invocation, nullptr);
    }
};

class Report : public testing::Test {
protected:
    Report() { SavedSettings::write({{"vl.open.routes", {"reports"}}}); }

    // The tab keeps its process, and the engine one more for whatever comes next.
    [[nodiscard]] static bool endsItsProcess(const AppProcess& app)
    {
        return eventually([&] { return app.webProcesses().size() <= 2; });
    }

    DemoServiceProcess service;
    const std::filesystem::path downloads =
        std::filesystem::path(std::getenv("HOME")) / "Downloads";
};

} // namespace

TEST_F(Report, isSavedFromThePageAndShownInItsFolder)
{
    const FakeFileManager fileManager;
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
    EXPECT_TRUE(endsItsProcess(app));

    EXPECT_TRUE(app.press("Reveal in Finder"));
    EXPECT_TRUE(eventually([&] { return !fileManager.calls().empty(); }));
    EXPECT_EQ(fileManager.calls(),
        std::vector{"file://" + downloads.string() + "/Velmaro%20report%202026-10.pdf"});
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

TEST_F(Report, isNotPrintedAndTheWindowGoesOn)
{
    AppProcess app(service);
    for (int times = 0; times < 2; ++times) {
        ASSERT_TRUE(ReportsPage::pressPrint(app));
        ASSERT_TRUE(app.press("Cancel"));
        EXPECT_TRUE(endsItsProcess(app));
    }
}

} // namespace desktop
