#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace gtk {

// A small file that is only ever read and replaced as a whole. Any thread, one at a time.
namespace AtomicFile {

struct Contents {
    std::string text;

    // Why it could not be read; empty when it could, and when there is no such file.
    std::string failure;

    bool exists = false;
};

Contents read(const std::filesystem::path& path);

// Puts `text` in the place of what was at `path`, in one step: a reader, even after a power
// cut, finds either the old text or the new one. When the call returns, the new one is on the disk.
// Missing folders are made, and a symbolic link is kept, its target replaced. The file gets
// `permissions`, less those that the user's mask takes away; by default it is the user's alone.
// Returns why it failed, and then what was there is untouched; absent on success.
std::optional<std::string> replace(
    const std::filesystem::path& path, std::string_view text, mode_t permissions = 0600);

// Renames the file to `path` + ".damaged", over an older one. Returns why it failed; absent on
// success.
std::optional<std::string> setAside(const std::filesystem::path& path);

} // namespace AtomicFile

} // namespace gtk
