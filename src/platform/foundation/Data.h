#pragma once

#include <cstddef>
#include <vector>

namespace platform {

// A sequence of bytes that means nothing in itself.
using Data = std::vector<std::byte>;

} // namespace platform
