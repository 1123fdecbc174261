#pragma once

#include "platform/foundation/URL.h"

namespace platform {

// What to load, and how.
struct URLRequest {
    enum class CachePolicy {
        useProtocolCachePolicy = 0,
        reloadRevalidatingCacheData =
            5, // use what is cached only after the server has confirmed it
    };

    URL url;
    CachePolicy cachePolicy = CachePolicy::useProtocolCachePolicy;
    double timeoutInterval = 60; // seconds until an answer has begun
};

} // namespace platform
