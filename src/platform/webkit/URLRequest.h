#pragma once

#include "platform/foundation/URL.h"

namespace platform {

// What to load, and how. It is a plain value.
struct URLRequest {
    enum class CachePolicy {
        useProtocolCachePolicy = 0,
        reloadRevalidatingCacheData = 5, // the server confirms what is cached before it is used
    };

    URL url;
    CachePolicy cachePolicy = CachePolicy::useProtocolCachePolicy;
    double timeoutInterval = 60; // seconds until an answer has begun
};

} // namespace platform
