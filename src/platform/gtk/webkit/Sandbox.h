#pragma once

#include <optional>
#include <string>

namespace gtk {

// Why the engine cannot put its content processes into their sandbox, in a few words for the user.
// Absent when it can, and when the user has switched the sandbox off. With such a reason the first
// web view would end the program.
//
// Starts a small process and waits for it, which takes some milliseconds.
std::optional<std::string> sandboxProblem();

} // namespace gtk
