#pragma once

namespace platform {

class NSWindow;

// What a window tells about its life. The window does not own it and calls it on the main thread.
class NSWindowDelegate {
public:
    virtual ~NSWindowDelegate() = default;

    // The window is about to go away, whatever closes it.
    virtual void windowWillClose(NSWindow&) { }
};

} // namespace platform
