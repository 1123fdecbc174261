#pragma once

#include "platform/foundation/URLCache.h"

namespace simulated {

// A store that never holds an answer and counts how often it was emptied.
class SimulatedURLCache final : public platform::URLCache {
public:
    void removeAllCachedResponses() override { ++removals; }

    int removals = 0;
};

} // namespace simulated
