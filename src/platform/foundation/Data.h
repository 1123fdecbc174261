#pragma once

#include <cstddef>
#include <vector>

namespace platform {

// A sequence of bytes that means nothing in itself. It is a plain value for any thread.
using Data = std::vector<std::byte>;

} // namespace platform
