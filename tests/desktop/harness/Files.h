#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace desktop {

// The bytes of a file; none when it cannot be read.
std::string contentsOf(const std::filesystem::path& file);

// All files in a folder and in those below it, as far as they stay while they are looked for.
std::vector<std::filesystem::path> filesBelow(const std::filesystem::path& folder);

} // namespace desktop
