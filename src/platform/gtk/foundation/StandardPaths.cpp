#include "platform/gtk/foundation/StandardPaths.h"

#include <glib.h>

namespace gtk {

StandardPaths StandardPaths::forProgram(const std::filesystem::path& name)
{
    return {
        .config = g_get_user_config_dir() / name,
        .data = g_get_user_data_dir() / name,
        .cache = g_get_user_cache_dir() / name,
    };
}

} // namespace gtk
