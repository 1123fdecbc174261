#pragma once

#include "platform/foundation/URL.h"

#include <optional>
#include <string_view>

namespace gtk {

// The URL of an address that the engine tells. Absent for what the engine itself cannot make sense
// of and passes on as it was written, since one of us would then go by another host than the other.
std::optional<platform::URL> urlOfPageAddress(std::string_view address);

} // namespace gtk
