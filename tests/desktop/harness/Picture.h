#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace desktop {

// What a window shows at one moment: rows from the top, each pixel as 0xRRGGBB.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;

    bool operator==(const Picture&) const = default;

    // About which part of what is below the title bar, 0 to 1, has the commonest colour. Near 1
    // means that there is next to nothing to see.
    double uniformity() const;

    // False when the file cannot be written.
    bool writePNG(const std::string& path) const;
};

} // namespace desktop
