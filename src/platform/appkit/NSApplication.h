#pragma once

#include "platform/appkit/NSWindow.h"

#include <memory>
#include <vector>

namespace ui {
struct Scene;
}

namespace platform {

class NSApplicationDelegate;
struct NSWindowDescription;

// The running program: its windows, its life, and the addresses it is asked to open. The platform
// owns the one there is. Main thread only. What the desktop does not let a program do is silently
// left undone.
class NSApplication {
public:
    // Posted once, when the program is about to end in an orderly way: last window closed, quit,
    // SIGTERM, SIGINT, SIGHUP, or the end of the desktop session. A crash posts nothing.
    static constexpr auto willTerminateNotification = "NSApplicationWillTerminateNotification";

    static NSApplication& shared();

    virtual ~NSApplication() = default;

    // Windows in the platform's order, front to back where it tells; those closed are not among
    // them.
    virtual std::vector<std::shared_ptr<NSWindow>> windows() const = 0;

    // The window with the keyboard; null when another program has it.
    virtual std::shared_ptr<NSWindow> keyWindow() const = 0;

    // The window that the user works in, also while one of its dialogs has the keyboard; null while
    // another program has it.
    virtual std::shared_ptr<NSWindow> mainWindow() const = 0;

    // See `NSWindow::make`.
    virtual std::shared_ptr<NSWindow> makeWindow(const NSWindowDescription& description) = 0;

    // Whether the application has a picture of its own to show.
    virtual bool hasApplicationIconImage() const = 0;

    // Launches with `delegate`, shows the windows of `scene` and handles events until the program
    // ends. Returns the exit status. Both arguments must outlive the call.
    virtual int run(NSApplicationDelegate& delegate, const ui::Scene& scene) = 0;

    // Puts the application in front of all others, as far as the desktop lets it: where only
    // windows come forward, the next one to be ordered front does.
    virtual void activateIgnoringOtherApps(bool ignoresOthers) = 0;

    // Ends the program in the orderly way, once the current event is handled.
    virtual void terminate() = 0;
};

} // namespace platform
