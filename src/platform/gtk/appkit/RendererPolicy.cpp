#include "platform/gtk/appkit/RendererPolicy.h"

#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <unistd.h>

namespace gtk {

bool hasGraphicsProcessor()
{
    std::error_code error;
    for (const auto& device : std::filesystem::directory_iterator("/dev/dri", error)) {
        const auto& path = device.path();
        if (path.filename().native().starts_with("renderD")
            && access(path.c_str(), R_OK | W_OK) == 0)
            return true;
    }
    return false;
}

void chooseRenderer()
{
    constexpr int keep = 0;
    if (!hasGraphicsProcessor())
        setenv("GSK_RENDERER", "cairo", keep);
}

} // namespace gtk
