#pragma once

#include "platform/appkit/NSApplicationDelegate.h"

namespace velmaro {

// How the application launches, reopens and quits: with one window, whose closing ends it.
class AppDelegate final : public platform::NSApplicationDelegate {
public:
    void applicationWillFinishLaunching(platform::NSApplication&) override;
    void applicationDidFinishLaunching(platform::NSApplication&) override;
    bool applicationShouldTerminateAfterLastWindowClosed(platform::NSApplication&) override;
    bool applicationSupportsSecureRestorableState(platform::NSApplication&) override;
    bool applicationShouldHandleReopen(
        platform::NSApplication& application, bool hasVisibleWindows) override;
};

} // namespace velmaro
