#pragma once

#include <ostream>

namespace desktop {

// In pixels from the upper left corner of the screen.
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
