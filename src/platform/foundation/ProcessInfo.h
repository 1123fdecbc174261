#pragma once

#include <cstdint>

namespace platform {

// What the machine has left for this program. The platform owns it. Main thread only.
class ProcessInfo {
public:
    static ProcessInfo& processInfo();

    virtual ~ProcessInfo() = default;

    // Bytes of memory that programs can still take before the machine has to swap; all that can be
    // counted where the system does not tell.
    virtual std::uint64_t availableMemory() const = 0;
};

} // namespace platform
