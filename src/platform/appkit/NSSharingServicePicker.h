#pragma once

#include "platform/appkit/Geometry.h"
#include "platform/foundation/URL.h"

#include <vector>

namespace platform {

class NSView;

// A list of what can be done with files beyond this application: open them in another program, send
// them, copy them. It is a plain value, which `show` copies. Main thread only.
struct NSSharingServicePicker {
    std::vector<URL> items; // addresses of files

    // Shows the list at the edge of a rectangle of `view`, in that view's coordinates. Where the
    // desktop gives programs no such place, and for a view in no window, it stands by itself. The
    // call returns at once, and whatever the user picks is done without telling.
    void show(const NSRect& rectangle, NSView& view, NSRectEdge preferredEdge) const;
};

} // namespace platform
