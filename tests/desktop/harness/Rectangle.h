#pragma once

#include <ostream>

namespace desktop {

// In pixels from the upper left corner of the screen.
struct Point {
    int x = 0;
    int y = 0;

    bool operator==(const Point&) const = default;
};

// In pixels likewise, where nothing else is said.
struct Rectangle {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Rectangle&) const = default;

    friend std::ostream& operator<<(std::ostream& stream, const Rectangle& rectangle)
    {
        return stream << rectangle.width << "x" << rectangle.height << " at (" << rectangle.x
                      << ", " << rectangle.y << ")";
    }
};

} // namespace desktop
