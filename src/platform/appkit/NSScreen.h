#pragma once

#include "platform/appkit/Geometry.h"

namespace platform {

// One monitor. The platform owns it until it is unplugged, so it is asked for anew each time and
// never kept. Main thread only.
class NSScreen {
public:
    // The screen with the key window, else the first; null when there is none.
    static NSScreen* main();

    virtual ~NSScreen() = default;

    // The area that no panel or dock covers; the whole monitor where the desktop does not tell.
    virtual NSRect visibleFrame() const = 0;
};

} // namespace platform
