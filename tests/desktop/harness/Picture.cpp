#include "Picture.h"

#include <algorithm>
#include <gdk-pixbuf/gdk-pixbuf.h>

namespace desktop {

double Picture::uniformity() const
{
    // Some of the pixels tell as much as all, and are counted in time for every frame.
    constexpr int step = 3;
    constexpr int border = 10;
    std::vector<std::uint32_t> sorted;
    for (int y = height / 5; y < height - border; y += step) {
        for (int x = border; x < width - border; x += step)
            sorted.push_back(pixels[static_cast<std::size_t>(y) * width + x]);
    }
    if (sorted.empty())
        return 1;
    std::sort(sorted.begin(), sorted.end());
    std::size_t most = 0, run = 0;
    for (std::size_t index = 0; index < sorted.size(); ++index) {
        run = index && sorted[index] == sorted[index - 1] ? run + 1 : 1;
        most = std::max(most, run);
    }
    return static_cast<double>(most) / static_cast<double>(sorted.size());
}

bool Picture::writePNG(const std::string& path) const
{
    std::vector<guchar> bytes;
    bytes.reserve(pixels.size() * 3);
    for (const auto pixel : pixels) {
        for (const int shift : {16, 8, 0})
            bytes.push_back(static_cast<guchar>(pixel >> shift));
    }
    GdkPixbuf* image = gdk_pixbuf_new_from_data(
        bytes.data(), GDK_COLORSPACE_RGB, FALSE, 8, width, height, width * 3, nullptr, nullptr);
    const bool isWritten = gdk_pixbuf_save(image, path.c_str(), "png", nullptr, nullptr);
    g_object_unref(image);
    return isWritten;
}

} // namespace desktop
