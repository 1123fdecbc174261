// Reports of the demo's pages, as somebody at the desktop saves and prints them.

#include "harness/AppProcess.h"
#include "harness/SavedSettings.h"

#include <csignal>
#include <fstream>
#include <gtest/gtest.h>

namespace desktop {

namespace {

constexpr std::uint32_t accent = 0x0e6f63; // the colour of the page's main button

// The middle of the first wide bar of the accent colour, from above.
std::optional<std::pair<int, int>> mainButton(const Picture& picture)
{
    constexpr int leastWidth = 80;
    for (int y = 0; y < picture.height; ++y) {
        int length = 0;
        for (int x = 0; x < picture.width; ++x) {
            const auto pixel = picture.pixels[static_cast<std::size_t>(y) * picture.width + x];
            length = pixel == accent ? length + 1 : 0;
            if (length == leastWidth)
                return std::pair(x - leastWidth / 2, y + 10);
        }
    }
    return {};
}

class Report : public testing::Test {
protected:
    Report()
    {
        SavedSettings::write({{"vl.open.routes", {"reports"}}});
        // The other printers are looked for through services that are not on this desktop.
        const std::filesystem::path folder = std::getenv("XDG_CONFIG_HOME");
        std::filesystem::create_directories(folder / "gtk-4.0");
        std::ofstream(folder / "gtk-4.0/settings.ini") << "[Settings]\ngtk-print-backends=file\n";
    }

    // Presses the page's main button, or what is so many pixels to the left of its middle.
    void press(AppProcess& app, int toTheLeft = 0)
    {
        const auto window = app.waitForWindow();
        ASSERT_TRUE(window && app.waitForPage());
        std::optional<std::pair<int, int>> button;
        ASSERT_TRUE(eventually([&] {
            const auto picture = window->picture();
            button = picture ? mainButton(*picture) : std::nullopt;
            return button.has_value();
        }));
        window->click(button->first - toTheLeft, button->second);
    }

    // The tab keeps its process, and the engine one more for whatever comes next.
    [[nodiscard]] static bool endsItsProcess(const AppProcess& app)
    {
        return eventually([&] { return app.webProcesses().size() <= 2; });
    }

    DemoServiceProcess service_;
    const std::filesystem::path downloads_ =
        std::filesystem::path(std::getenv("HOME")) / "Downloads";
};

} // namespace

TEST_F(Report, isSavedFromThePage)
{
    AppProcess app(service_);
    press(app);
    EXPECT_TRUE(app.shows("Share…"));

    const auto file = downloads_ / "Velmaro report 2026-10.pdf";
    Process facts({"pdfinfo", "-url", file});
    EXPECT_EQ(facts.waitForExit(), 0);
    EXPECT_NE(facts.output().find(service_.origin() + "/help"), std::string::npos);
    Process text({"pdftotext", file, "-"});
    EXPECT_EQ(text.waitForExit(), 0);
    EXPECT_NE(text.output().find("Energy costs by month"), std::string::npos);
    EXPECT_TRUE(endsItsProcess(app));
}

TEST_F(Report, thatCannotBeWrittenSaysWhyAndLeavesNothing)
{
    std::ofstream(downloads_) << "in the way";
    AppProcess app(service_);
    press(app);
    EXPECT_TRUE(app.shows("Couldn't save PDF: Not a directory"));
    EXPECT_TRUE(app.press("OK"));
    EXPECT_TRUE(std::filesystem::is_regular_file(downloads_));
}

TEST_F(Report, isPrintedOrNotAndTheWindowGoesOn)
{
    constexpr int fromSaveToPrint = 120; // pixels
    AppProcess app(service_);
    for (int times = 0; times < 2; ++times) {
        press(app, fromSaveToPrint);
        ASSERT_TRUE(app.press("Cancel"));
        EXPECT_TRUE(endsItsProcess(app));
    }
    press(app, fromSaveToPrint);
    ASSERT_TRUE(eventually([] { return Desktop::window("Print").has_value(); }));
    app.process().signal(SIGTERM);
    EXPECT_EQ(app.process().waitForExit(), 0) << "a panel does not keep the program";
}

} // namespace desktop
