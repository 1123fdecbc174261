#include "app/AppDelegate.h"

#include "notifications/NotificationCenterBridge.h"
#include "platform/appkit/NSApplication.h"
#include "platform/foundation/DispatchQueue.h"

#include <algorithm>

namespace velmaro {

using platform::DispatchQueue;
using platform::NSApplication;
using platform::NSWindow;

namespace {

constexpr double duplicateWindowSweepDelay = 0.35; // seconds after launch

bool isMainWindow(const std::shared_ptr<NSWindow>& window)
{
    return window->canBecomeMainWindow() && window->contentView();
}

void closeDuplicateWindows()
{
    auto windows = NSApplication::shared().windows();
    std::erase_if(windows, [](const auto& window) { return !isMainWindow(window); });
    for (std::size_t i = 1; i < windows.size(); ++i)
        windows[i]->close();
}

} // namespace

void AppDelegate::applicationWillFinishLaunching(NSApplication&)
{
    NSWindow::setAllowsAutomaticWindowTabbing(false);
}

void AppDelegate::applicationDidFinishLaunching(NSApplication&)
{
    NotificationCenterBridge::shared(); // from here on it receives clicks, also of earlier runs
    DispatchQueue::main().asyncAfter(duplicateWindowSweepDelay, closeDuplicateWindows);
}

bool AppDelegate::applicationShouldTerminateAfterLastWindowClosed(NSApplication&)
{
    return true;
}

bool AppDelegate::applicationSupportsSecureRestorableState(NSApplication&)
{
    return false;
}

bool AppDelegate::applicationShouldHandleReopen(NSApplication& application, bool hasVisibleWindows)
{
    if (hasVisibleWindows)
        return true;
    const auto windows = application.windows();
    const auto window = std::ranges::find_if(windows, isMainWindow);
    if (window == windows.end())
        return true;
    (*window)->makeKeyAndOrderFront();
    return false;
}

} // namespace velmaro
