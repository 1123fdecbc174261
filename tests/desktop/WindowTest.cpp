// What the window manager and the user may do to the window.

#include "harness/AppProcess.h"

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

    manage(*window, {"windowsize", "2000", "1500"});
    EXPECT_TRUE(eventually([&] { return window->frame().width > width; }));
    EXPECT_TRUE(eventually([&] {
        manage(*window, {"windowsize", "300", "200"}); // as often as a hand that drags the edge
        return window->frame().width == width && window->frame().height == height;
    }));
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
