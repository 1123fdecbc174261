#pragma once

#include "platform/appkit/Geometry.h"

#include <memory>

namespace platform {

class NSWindow;

// A native view that stands in a tree of declared views. The tree owns it; others hold it weakly.
// Main thread only.
class NSView : public std::enable_shared_from_this<NSView> {
public:
    virtual ~NSView() = default;

    // The window that holds the view; null while it is in no window.
    virtual NSWindow* window() const = 0;

    // The view's own rectangle in its own coordinates; empty for one that has no size yet.
    virtual NSRect bounds() const { return {}; }
};

} // namespace platform
