#include "ReportsPage.h"

#include "UserInput.h"

#include <algorithm>

namespace desktop {

namespace {

constexpr std::uint32_t fuelColor = 0xe39a35; // of the bars, which come with the figures

// Until its figures are there the page is drawn anew, and a key may be lost.
bool press(AppProcess& app, const char* key)
{
    const auto window = app.waitForWindow();
    const bool isThere = window && app.waitForPage() && eventually([&] {
        const auto picture = window->picture();
        return picture && std::ranges::count(picture->pixels, fuelColor) > 0;
    });
    if (isThere)
        UserInput::press(key);
    return isThere;
}

} // namespace

bool ReportsPage::pressSave(AppProcess& app)
{
    return press(app, "alt+s");
}

bool ReportsPage::pressPrint(AppProcess& app)
{
    return press(app, "alt+p");
}

} // namespace desktop
