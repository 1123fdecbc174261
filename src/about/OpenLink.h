#pragma once

#include "platform/appkit/NSWorkspace.h"

#include <string>

namespace velmaro {

// Opens `address` in the user's browser; one that is not valid does nothing.
inline void openLink(const std::string& address)
{
    if (const auto url = platform::URL::fromString(address))
        platform::NSWorkspace::shared().open(*url);
}

} // namespace velmaro
