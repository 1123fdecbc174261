#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace gtk {

// Runs one of the system's programs. `handler` is called once, later, with what it has written to
// its standard output; with nothing when it failed or there is no such program. Dropping the
// result ends the wait, and `handler` is not called any more.
[[nodiscard]] std::shared_ptr<void> runProgram(const std::vector<std::string>& arguments,
    std::function<void(std::optional<std::string> output)> handler);

} // namespace gtk
