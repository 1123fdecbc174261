#pragma once

#include "http/Answer.h"

#include <optional>

namespace demo {

/// The answer of an address under "/hostile", which misbehaves on purpose; nothing for any other
/// address. The table is in the README.
std::optional<Answer> hostileAnswer(const Request&);

} // namespace demo
