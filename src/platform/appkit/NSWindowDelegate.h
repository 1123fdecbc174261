#pragma once

namespace platform {

class NSWindow;

// What a window tells about its life. Main thread only.
class NSWindowDelegate {
public:
    virtual ~NSWindowDelegate() = default;

    // The window, by whomever it is closed, is about to go away.
    virtual void windowWillClose(NSWindow&) { }
};

} // namespace platform
