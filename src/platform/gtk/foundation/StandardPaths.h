#pragma once

#include <filesystem>
#include <glib.h>

namespace gtk {

// The folders of one program, where the XDG base directories say. They need not exist yet.
struct StandardPaths {
    std::filesystem::path config;
    std::filesystem::path data;
    std::filesystem::path cache;

    // The current user's folders of the program called `name`.
    static StandardPaths forProgram(const std::filesystem::path& name)
    {
        return {
            .config = g_get_user_config_dir() / name,
            .data = g_get_user_data_dir() / name,
            .cache = g_get_user_cache_dir() / name,
        };
    }
};

} // namespace gtk
