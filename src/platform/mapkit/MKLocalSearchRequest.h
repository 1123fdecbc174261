#pragma once

#include "platform/mapkit/MKLocalSearchCompletion.h"

namespace platform {

// What a search is to find: the place that a suggestion stands for.
struct MKLocalSearchRequest {
    std::shared_ptr<const MKLocalSearchCompletion> completion;
};

} // namespace platform
