#include "PageOnScreen.h"

#include "Eventually.h"

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
    std::optional<PageOnScreen> page;
    const bool isComplete = eventually(
        [&] {
            auto picture = window.picture();
            const auto now = Clock::now();
            if (!picture)
                return false;
            if (page && page->picture == *picture)
                return now - page->lastChange >= quietTime;
            if (picture->uniformity() > mostUniform) {
                page.reset();
                return false;
            }
            page = PageOnScreen{
                .firstSeen = page ? page->firstSeen : now,
                .lastChange = now,
                .picture = std::move(*picture),
            };
            return false;
        },
        limit);
    if (!isComplete)
        return {};
    return page;
}

} // namespace desktop
