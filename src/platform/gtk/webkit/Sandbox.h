#pragma once

#include <optional>
#include <string>

namespace gtk {

// What keeps the engine from putting its content processes into their sandbox, in a few words for a
// person. Absent when nothing does, and when the user has switched the sandbox off. The engine
// would end the program instead.
//
// Starts a small process and waits for it, which takes some milliseconds.
std::optional<std::string> sandboxProblem();

} // namespace gtk
