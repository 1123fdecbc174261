#pragma once

namespace platform {

// All lengths are points. The origin of a screen is its lower left corner and y grows upwards.
// These are plain values for any thread.

struct NSPoint {
    double x = 0;
    double y = 0;

    bool operator==(const NSPoint&) const = default;
};

struct NSSize {
    double width = 0;
    double height = 0;

    bool operator==(const NSSize&) const = default;
};

struct NSRect {
    NSPoint origin;
    NSSize size;

    bool operator==(const NSRect&) const = default;
};

enum class NSRectEdge { minX = 0, minY = 1, maxX = 2, maxY = 3 };

} // namespace platform
