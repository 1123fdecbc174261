#pragma once

namespace platform {

class NSApplication;

// What the application decides about its own life. The application does not own it and calls it on
// the main thread while `NSApplication::run` lasts.
class NSApplicationDelegate {
public:
    virtual ~NSApplicationDelegate() = default;

    // Before the first window is made.
    virtual void applicationWillFinishLaunching(NSApplication&) = 0;

    // After the first window is made, before the first event.
    virtual void applicationDidFinishLaunching(NSApplication&) = 0;

    virtual bool applicationShouldTerminateAfterLastWindowClosed(NSApplication&) = 0;

    // Whether the platform may keep and restore window state of its own.
    virtual bool applicationSupportsSecureRestorableState(NSApplication&) = 0;

    // The user asked for the running application once more. True lets the platform do its default:
    // bring a visible window forward, or make a new one where there is none.
    virtual bool applicationShouldHandleReopen(NSApplication&, bool hasVisibleWindows) = 0;
};

} // namespace platform
