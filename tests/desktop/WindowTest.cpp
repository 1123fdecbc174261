// What the window manager and the user may do to the window.

#include "harness/AppProcess.h"

#include <gtest/gtest.h>
#include <X11/Xlib.h>

namespace desktop {

namespace {

// The test's own way to the X server.
class Hand {
public:
    ~Hand() { XCloseDisplay(display_); }

    void resize(const DesktopWindow& window, int width, int height)
    {
        XResizeWindow(
            display_, window.id(), static_cast<unsigned>(width), static_cast<unsigned>(height));
        XFlush(display_);
    }

    void minimize(const DesktopWindow& window)
    {
        XIconifyWindow(display_, window.id(), DefaultScreen(display_));
        XFlush(display_);
    }

    bool isShown(const DesktopWindow& window)
    {
        XWindowAttributes attributes;
        return XGetWindowAttributes(display_, window.id(), &attributes)
            && attributes.map_state == IsViewable;
    }

private:
    Display* display_ = XOpenDisplay(nullptr);
};

bool comesTo(const DesktopWindow& window, int width, int height)
{
    return eventually([&] {
        const auto frame = window.frame();
        return frame.width == width && frame.height == height;
    });
}

} // namespace

TEST(Window, cannotBeMadeSmallerThanItOpens)
{
    DemoServiceProcess service;
    AppProcess app(service);
    const auto window = app.waitForWindow();
    ASSERT_TRUE(window);
    const auto opened = window->frame();

    Hand hand;
    hand.resize(*window, opened.width + 40, opened.height + 30);
    EXPECT_TRUE(comesTo(*window, opened.width + 40, opened.height + 30));
    hand.resize(*window, 300, 200);
    EXPECT_TRUE(comesTo(*window, opened.width, opened.height));
}

TEST(Window, comesBackWhenTheMinimizedApplicationIsStartedAgain)
{
    DemoServiceProcess service;
    AppProcess app(service);
    ASSERT_TRUE(app.waitForPage()); // while it opens, the window asks to be in front
    const auto window = app.waitForWindow();
    ASSERT_TRUE(window);

    Hand hand;
    hand.minimize(*window);
    ASSERT_TRUE(eventually([&] { return !hand.isShown(*window); }));
    AppProcess second(service);
    EXPECT_EQ(second.process().waitForExit(), 0) << second.process().errors();
    EXPECT_TRUE(eventually([&] { return hand.isShown(*window); }));
}

} // namespace desktop
