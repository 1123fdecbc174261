#pragma once

#include "platform/mapkit/MKLocalSearchCompletion.h"

namespace platform {

// What a search is to find: the place that a suggestion stands for. It is a plain value.
struct MKLocalSearchRequest {
    std::shared_ptr<const MKLocalSearchCompletion> completion;
};

} // namespace platform
