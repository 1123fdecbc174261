#pragma once

#include "platform/appkit/Geometry.h"
#include "platform/appkit/NSScreen.h"

#include <cstdint>
#include <memory>

namespace platform {

class NSView;
class NSWindowDelegate;
struct NSWindowDescription;

// A top-level window. The application object owns it; everybody else holds it weakly, since it goes
// away when it is closed. What a desktop does not let a program decide (on Wayland: the position)
// is silently left as the desktop has it. Main thread only.
class NSWindow : public std::enable_shared_from_this<NSWindow> {
public:
    // Posted after every change of size, whatever caused it; the sender is the window.
    static constexpr auto didResizeNotification = "NSWindowDidResizeNotification";

    enum class TabbingMode { automatic, preferred, disallowed };

    // Bits of `collectionBehavior`.
    static constexpr std::uint32_t fullScreenNone = 0x200;

    // A window beside those of the application's scene. It is made hidden.
    static std::shared_ptr<NSWindow> make(const NSWindowDescription& description);

    // Whether the platform may merge windows of the application into tabs of its own. Class-wide.
    static bool allowsAutomaticWindowTabbing();
    static void setAllowsAutomaticWindowTabbing(bool);

    virtual ~NSWindow() = default;

    // The screen that holds the largest part of the window; null when it is on no screen.
    virtual NSScreen* screen() const = 0;

    // The user sees it, or would if no other window covered it.
    virtual bool isVisible() const = 0;

    // Outer rectangle, title bar included, in screen points.
    virtual NSRect frame() const = 0;
    virtual void setFrame(const NSRect& frame, bool display, bool animate = false) = 0;

    // The least outer size that the user can give the window.
    virtual NSSize minSize() const = 0;
    virtual void setMinSize(NSSize size) = 0;

    virtual bool isFullScreen() const = 0;

    // These three are remembered and change nothing: this desktop has no spaces for full screens,
    // merges no windows into tabs and brings no windows back by itself.
    std::uint32_t collectionBehavior() const { return collectionBehavior_; }
    void setCollectionBehavior(std::uint32_t behavior) { collectionBehavior_ = behavior; }
    TabbingMode tabbingMode() const { return tabbingMode_; }
    void setTabbingMode(TabbingMode mode) { tabbingMode_ = mode; }
    bool isRestorable() const { return isRestorable_; }
    void setRestorable(bool isRestorable) { isRestorable_ = isRestorable; }

    // False for panels and for windows that are going away.
    virtual bool canBecomeMainWindow() const = 0;

    // The view that fills the window; null before there is one.
    virtual NSView* contentView() const = 0;

    // The delegate hears what becomes of the window, and may be null. It must outlive the window,
    // or take itself away first.
    virtual void setDelegate(NSWindowDelegate* delegate) = 0;

    // Moves the window to the middle of its screen.
    void center();

    // Shows the window, also out of a minimised state, in front of all others and gives it the
    // keyboard.
    virtual void makeKeyAndOrderFront() = 0;

    // Closes without asking. The last window's closing may end the application.
    virtual void close() = 0;

private:
    std::uint32_t collectionBehavior_ = 0;
    TabbingMode tabbingMode_ = TabbingMode::automatic;
    bool isRestorable_ = true;
};

} // namespace platform
