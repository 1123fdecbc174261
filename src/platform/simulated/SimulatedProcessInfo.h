#pragma once

#include "platform/foundation/ProcessInfo.h"

namespace simulated {

class SimulatedProcessInfo final : public platform::ProcessInfo {
public:
    std::uint64_t availableMemory() const override { return memory; }

    std::uint64_t memory = std::uint64_t(8) << 30; // bytes
};

} // namespace simulated
