#include "PageOnScreen.h"

#include "Process.h"

namespace desktop {

namespace {

constexpr auto quietTime = std::chrono::milliseconds(500);

// An empty page and a splash, with its faint icon, are more uniform than this; no page that has
// something on it is.
constexpr double mostUniform = 0.95;

} // namespace

std::optional<PageOnScreen> pageOnScreen(
    const DesktopWindow& window, std::chrono::milliseconds limit)
{
    DrawingWatch watch(window);
    std::optional<Picture> latest;
    std::optional<PageOnScreen> page;
    const auto look = [&] {
        const auto now = Clock::now();
        auto picture = window.picture();
        if (!picture || picture == latest)
            return;
        latest = std::move(picture);
        if (latest->uniformity() > mostUniform)
            page.reset();
        else
            page = {.firstSeen = page ? page->firstSeen : now, .lastChange = now, .picture = {}};
    };
    const bool isComplete = eventually(
        [&] {
            if (watch.hasDrawn() || !latest)
                look();
            return page && Clock::now() - page->lastChange >= quietTime;
        },
        limit, shortPause);
    if (!isComplete)
        return {};
    page->picture = std::move(*latest);
    return page;
}

} // namespace desktop
