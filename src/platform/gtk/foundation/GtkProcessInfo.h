#pragma once

#include "platform/foundation/ProcessInfo.h"

namespace gtk {

// What the kernel tells about the machine's memory.
class GtkProcessInfo final : public platform::ProcessInfo {
public:
    std::uint64_t availableMemory() const override;
};

} // namespace gtk
