// Looking for words in a page.

#include "harness/SignedInTest.h"
#include "harness/UserInput.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace desktop {

namespace {

// Whether it has the colour of the light look's selection, through which the page shines a little.
bool isSelected(std::uint32_t pixel)
{
    constexpr std::uint32_t color = 0x3484e4;
    constexpr int tolerance = 4;
    const auto isLike = [&](int shift) {
        return std::abs(int(pixel >> shift & 0xff) - int(color >> shift & 0xff)) <= tolerance;
    };
    return isLike(16) && isLike(8) && isLike(0);
}

// The topmost line with something selected; absent when nothing is.
std::optional<int> selectedLine(const Picture& picture)
{
    constexpr int leastWidth = 8; // pixels side by side, which no rounded corner has
    const auto& pixels = picture.pixels;
    const auto found = std::search_n(pixels.begin(), pixels.end(), leastWidth, true,
        [](std::uint32_t pixel, bool wanted) { return isSelected(pixel) == wanted; });
    if (found == pixels.end())
        return {};
    return static_cast<int>(found - pixels.begin()) / picture.width;
}

struct FindBar : SignedInTest { };

} // namespace

TEST_F(FindBar, goesFromMatchToMatchWithTheKeyboardAlone)
{
    launch({"drives"});

    UserInput::press("ctrl+f");
    ASSERT_TRUE(app->shows("Next match (⌘G)"));
    UserInput::type("harbour");
    std::optional<int> match;
    const auto comes = [&, window = app->waitForWindow()](auto condition) {
        return eventually([&] {
            match = selectedLine(window->picture().value_or(Picture{}));
            return condition();
        });
    };
    UserInput::press("Return");
    ASSERT_TRUE(comes([&] { return match.has_value(); }));
    const int first = *match;
    UserInput::press("Return");
    EXPECT_TRUE(comes([&] { return match && *match > first; }));
    UserInput::press("ctrl+shift+g");
    EXPECT_TRUE(comes([&] { return match == first; }));
    UserInput::press("Escape");
    EXPECT_TRUE(comes([&] { return !match; }));
    EXPECT_TRUE(app->loses("Next match (⌘G)"));
}

} // namespace desktop
