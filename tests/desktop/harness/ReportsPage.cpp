#include "ReportsPage.h"

#include <algorithm>

namespace desktop {

namespace {

constexpr std::uint32_t accent = 0x0e6f63; // the colour of the page's main button, which saves
constexpr std::uint32_t fuelColor = 0xe39a35; // of the bars, which come with the figures
constexpr int fromSaveToPrint = 120; // pixels to the left

// Until its figures are there the page is drawn anew, and a click into it may be lost.
bool showsFigures(const Picture& picture)
{
    return std::ranges::find(picture.pixels, fuelColor) != picture.pixels.end();
}

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

bool press(AppProcess& app, int toTheLeft)
{
    const auto window = app.waitForWindow();
    if (!window || !app.waitForPage())
        return false;
    std::optional<std::pair<int, int>> button;
    const bool isThere = eventually([&] {
        const auto picture = window->picture();
        button = picture && showsFigures(*picture) ? mainButton(*picture) : std::nullopt;
        return button.has_value();
    });
    if (isThere)
        window->click(button->first - toTheLeft, button->second);
    return isThere;
}

} // namespace

bool ReportsPage::pressSave(AppProcess& app)
{
    return press(app, 0);
}

bool ReportsPage::pressPrint(AppProcess& app)
{
    return press(app, fromSaveToPrint);
}

} // namespace desktop
