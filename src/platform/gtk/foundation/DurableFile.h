#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace gtk {

// A small file that is only ever read and replaced as a whole. Any thread, one at a time.
namespace DurableFile {

struct Contents {
    std::string text;
    std::string
        failure; // why it could not be read; empty when it could, and when there is no such file
    bool exists = false;
};

Contents read(const std::filesystem::path& path);

// Puts `text` in the place of what was at `path`, in one step: whoever reads it, even after a power
// cut, finds either the old text or the new one. When the call returns, the new one is on the disk.
// Missing folders are made, the file is the user's alone (mode 600), and a symbolic link is kept,
// its target replaced. Returns why it failed, and then what was there is untouched; absent on
// success.
std::optional<std::string> replace(const std::filesystem::path& path, std::string_view text);

// Renames the file to `path` + ".damaged", over an older one. Returns why it failed; absent on
// success.
std::optional<std::string> setAside(const std::filesystem::path& path);

} // namespace DurableFile

} // namespace gtk
