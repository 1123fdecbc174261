#include "platform/gtk/foundation/Sandboxing.h"

#include <filesystem>

namespace gtk {

bool isSandboxed()
{
    std::error_code error; // means no
    return std::filesystem::exists("/.flatpak-info", error);
}

} // namespace gtk
