#pragma once

#include "Desktop.h"

#include <filesystem>

namespace desktop {

// Drags files out of another program's window and drops them at a place of the screen, as a person
// does with the mouse. Returns when the other program has been told how it ended; false when nobody
// there would take them.
[[nodiscard]] bool dragFiles(const std::vector<std::filesystem::path>& files, int x, int y);

} // namespace desktop
