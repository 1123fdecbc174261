#include "tabs/WindowSizer.h"

#include "platform/foundation/DispatchQueue.h"
#include "platform/Platform.h"

#include <algorithm>
#include <cmath>

namespace velmaro {

using platform::DispatchQueue;
using platform::NotificationCenter;
using platform::NSRect;
using platform::NSScreen;
using platform::NSSize;
using platform::NSView;
using platform::NSWindow;

namespace {

constexpr double screenShare = 0.85;
constexpr double roundingTolerance = 0.5; // points
constexpr NSRect fallbackVisibleFrame{.origin = {}, .size = {1280, 800}};

NSSize sizeFor(const NSRect& visibleFrame)
{
    return {std::floor(visibleFrame.size.width * screenShare),
        std::floor(visibleFrame.size.height * screenShare)};
}

NSRect centred(const NSSize& size, const NSRect& area)
{
    return {{area.origin.x + (area.size.width - size.width) * 0.5,
                area.origin.y + (area.size.height - size.height) * 0.5},
        size};
}

NSScreen* screenOf(const NSWindow& window)
{
    auto* screen = window.screen();
    return screen ? screen : NSScreen::main();
}

// The window grows downwards: its top edge stays where it is.
void enforceMinimum(NSWindow& window)
{
    if (window.isFullScreen())
        return;

    const auto* screen = screenOf(window);
    const auto minimum = sizeFor(screen ? screen->visibleFrame() : fallbackVisibleFrame);
    const auto frame = window.frame();
    if (frame.size.width + roundingTolerance >= minimum.width
        && frame.size.height + roundingTolerance >= minimum.height)
        return;

    const NSSize size{
        std::max(frame.size.width, minimum.width), std::max(frame.size.height, minimum.height)};
    const double y = frame.origin.y - (size.height - frame.size.height);
    window.setFrame({{frame.origin.x, y}, size}, true, false);
    if (window.minSize().width < minimum.width || window.minSize().height < minimum.height)
        window.setMinSize(minimum);
}

NotificationCenter::Observer observeResizes(NSWindow& window)
{
    return NotificationCenter::defaultCenter().addObserver(NSWindow::didResizeNotification, &window,
        [weakWindow = window.weak_from_this()](const auto&) {
            if (const auto window = weakWindow.lock())
                enforceMinimum(*window);
        });
}

void configure(NSWindow& window, WindowSizer::Coordinator& coordinator)
{
    const auto* screen = screenOf(window);
    if (!screen)
        return;

    const auto visibleFrame = screen->visibleFrame();
    const auto size = sizeFor(visibleFrame);
    window.setFrame(centred(size, visibleFrame), true);
    window.setMinSize(size);
    window.setCollectionBehavior(window.collectionBehavior() & ~NSWindow::fullScreenNone);
    window.setTabbingMode(NSWindow::TabbingMode::disallowed);
    window.setRestorable(false);
    coordinator.resizeObserver = observeResizes(window);
}

} // namespace

std::shared_ptr<WindowSizer::Coordinator> WindowSizer::makeCoordinator() const
{
    return std::make_shared<Coordinator>();
}

std::shared_ptr<NSView> WindowSizer::makeNSView(Coordinator& coordinator) const
{
    auto view = platform::Platform::current().makeView();
    updateNSView(*view, coordinator);
    return view;
}

void WindowSizer::updateNSView(NSView& view, Coordinator& coordinator) const
{
    if (coordinator.applied)
        return;
    // The view may not be in its window yet.
    DispatchQueue::main().async(
        [weakView = view.weak_from_this(), weakCoordinator = coordinator.weak_from_this()] {
            const auto view = weakView.lock();
            const auto coordinator = weakCoordinator.lock();
            if (!view || !coordinator || coordinator->applied || !view->window())
                return;
            configure(*view->window(), *coordinator);
            coordinator->applied = true;
        });
}

} // namespace velmaro
