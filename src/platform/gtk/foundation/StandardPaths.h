#pragma once

#include <filesystem>

namespace gtk {

// The folders of one program, where the XDG base directories say. They need not exist yet.
struct StandardPaths {
    std::filesystem::path config;
    std::filesystem::path data;
    std::filesystem::path cache;

    // The current user's folders of the program called `name`.
    static StandardPaths forProgram(const std::filesystem::path& name);
};

} // namespace gtk
