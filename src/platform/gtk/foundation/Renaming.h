#pragma once

#include <filesystem>

namespace gtk {

// Gives the file another name on the same file system, in one step, unless something bears that
// name: then it is EEXIST, and nothing changes. The number of the system's error; 0 on success.
int renameWithoutReplacing(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace gtk
