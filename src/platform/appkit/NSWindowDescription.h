#pragma once

#include "platform/appkit/Geometry.h"
#include "platform/ui/View.h"

#include <cstdint>
#include <string>

namespace platform {

// What a window beside those of the application's scene is made of. It is a plain value, which
// `NSWindow::make` copies.
struct NSWindowDescription {
    // Bits of `styleMask`.
    static constexpr std::uint32_t titled = 0x1;
    static constexpr std::uint32_t closable = 0x2;
    static constexpr std::uint32_t miniaturizable = 0x4;
    static constexpr std::uint32_t resizable = 0x8;
    static constexpr std::uint32_t fullSizeContentView = 0x8000; // goes on under the title bar

    std::uint32_t styleMask = titled | closable | miniaturizable | resizable;
    NSSize contentSize; // points
    std::string title = {}; // also where it is not drawn: task lists show it
    bool isTitleHidden = false;
    bool isTitlebarTransparent = false;
    bool isMovableByWindowBackground = false; // by dragging whatever takes no clicks
    ui::View content = {};
};

} // namespace platform
