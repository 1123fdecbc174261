#include "platform/gtk/renderer/PageWatch.h"

#include "platform/simulated/SimulatedQueue.h"

#include <gtest/gtest.h>

namespace {

// What holds for some seconds, after which something changes.
struct Phase {
    int seconds;
    bool isVisible = true;
    bool isPainted = true; // a frame of the window, once a second
    bool isLoaded = true;
    bool hasPage = false;
};

struct Case {
    const char* name;
    std::vector<Phase> phases;
    const char* outcome;
};

constexpr int tooLong = gtk::PageWatch::patience;
constexpr int anHour = 3600;

const Case cases[] = {
    {"a page appears at once", {{.seconds = 1, .hasPage = true}}, "appeared"},
    {"a page is loaded and does not appear", {{.seconds = tooLong - 1}, {.seconds = 1}}, "missing"},
    {"it takes an hour to load",
        {{.seconds = anHour, .isLoaded = false}, {.seconds = 1, .hasPage = true}}, "appeared"},
    {"the window is hidden behind another for an hour",
        {{.seconds = tooLong - 1}, {.seconds = anHour, .isPainted = false},
            {.seconds = 1, .hasPage = true}},
        "appeared"},
    {"the page is busy between loads",
        {{.seconds = tooLong - 1}, {.seconds = 1, .isLoaded = false}, {.seconds = tooLong - 1},
            {.seconds = 1, .hasPage = true}},
        "appeared"},
    {"the window is never painted", {{.seconds = tooLong, .isPainted = false, .isLoaded = false}},
        "no window"},
    {"a minimized window is never painted",
        {{.seconds = anHour, .isVisible = false, .isPainted = false, .isLoaded = false}},
        "nothing yet"},
};

} // namespace

TEST(PageWatch, tellsPagesThatAreMissingFromThoseThatAreLate)
{
    for (const auto& [name, phases, outcome] : cases) {
        SCOPED_TRACE(name);
        simulated::SimulatedQueue queue;
        gtk::PageWatch::Sight sight;
        bool isPainted = false;
        std::vector<std::string> told;
        const gtk::PageWatch guard(queue,
            {
                .look =
                    [&] {
                        sight.windowFrames += isPainted;
                        return sight;
                    },
                .appeared = [&] { told.emplace_back("appeared"); },
                .missing = [&] { told.emplace_back("missing"); },
            });
        for (const auto& phase : phases) {
            EXPECT_EQ(told.size(), 0u);
            sight.isWindowVisible = phase.isVisible;
            sight.isPageLoaded = phase.isLoaded;
            sight.hasPageFrame = phase.hasPage;
            isPainted = phase.isPainted;
            queue.advance(phase.seconds);
        }
        queue.advance(anHour); // nothing is told twice
        if (told.empty())
            told.emplace_back(guard.isWindowMissing() ? "no window" : "nothing yet");
        EXPECT_EQ(told, std::vector<std::string>{outcome});
    }
}
