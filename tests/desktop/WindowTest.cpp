// What the window manager and the user may do to the window.

#include "harness/AppProcess.h"
#include "harness/UserInput.h"

#include <cmath>
#include <gtest/gtest.h>

namespace desktop {

namespace {

// Does something to the window past the application, as a window manager does.
void manage(const DesktopWindow& window, std::vector<std::string> command)
{
    command.insert(command.begin(), "xdotool");
    command.insert(command.begin() + 2, std::to_string(window.id()));
    Process tool(command);
    EXPECT_EQ(tool.waitForExit(), 0) << tool.errors();
}

void resize(const DesktopWindow& window, int width, int height)
{
    manage(window, {"windowsize", std::to_string(width), std::to_string(height)});
}

bool comesTo(const DesktopWindow& window, int width, int height)
{
    return eventually([&] {
        const auto frame = window.frame();
        return frame.width == width && frame.height == height;
    });
}

} // namespace

TEST(Window, opensInTheMiddleOfTheWorkAreaAndCannotBeMadeSmaller)
{
    DemoServiceProcess service;
    AppProcess app(service);
    const auto window = app.waitForWindow();
    ASSERT_TRUE(window);
    const auto area = Desktop::workArea();
    const int width = static_cast<int>(std::floor(area.width * 0.85));
    const int height = static_cast<int>(std::floor(area.height * 0.85));
    const Rectangle middle = {
        .x = area.x + (area.width - width) / 2,
        .y = area.y + (area.height - height) / 2,
        .width = width,
        .height = height,
    };
    EXPECT_TRUE(eventually([&] { return window->frame() == middle; }))
        << window->frame() << " instead of " << middle;

    resize(*window, width + 40, height + 30);
    EXPECT_TRUE(comesTo(*window, width + 40, height + 30));
    resize(*window, 300, 200);
    EXPECT_TRUE(comesTo(*window, width, height));
}

TEST(Window, aboutIsOneOfItsSizeInTheMiddleOfTheScreen)
{
    constexpr auto title = "About Velmaro Online";
    constexpr int border = 5; // that the toolkit draws where nothing composes windows
    const auto isOpen = [] { return Desktop::window(title).has_value(); };
    const auto isNear = [](int value, int wanted) { return std::abs(value - wanted) <= border; };
    DemoServiceProcess service;
    AppProcess app(service);
    ASSERT_TRUE(app.waitForPage());
    for (int round = 0; round < 2; ++round) {
        UserInput::press("F10");
        ASSERT_TRUE(app.shows(title));
        UserInput::press("Return");
        ASSERT_TRUE(eventually(isOpen));
        const auto about = *Desktop::window(title);
        const auto area = Desktop::workArea();
        EXPECT_TRUE(eventually([&] {
            const auto frame = about.frame();
            return isNear(frame.width - border, 420) && isNear(frame.height - border, 520)
                && isNear(frame.x + frame.width / 2, area.x + area.width / 2)
                && isNear(frame.y + frame.height / 2, area.y + area.height / 2);
        })) << about.frame();
        EXPECT_TRUE(app.shows("App Store for iPhone"));
        about.close();
        EXPECT_TRUE(eventually([&] { return !isOpen(); }));
    }
}

TEST(Window, comesBackWhenTheMinimizedApplicationIsStartedAgain)
{
    DemoServiceProcess service;
    AppProcess app(service);
    ASSERT_TRUE(app.waitForPage()); // while it opens, the window asks to be in front
    const auto window = app.waitForWindow();
    ASSERT_TRUE(window);

    manage(*window, {"windowminimize"});
    ASSERT_TRUE(eventually([&] { return !window->picture(); }));
    AppProcess second(service);
    EXPECT_EQ(second.process().waitForExit(), 0) << second.process().errors();
    EXPECT_TRUE(eventually([&] { return window->picture().has_value(); }));
}

} // namespace desktop
