#pragma once

#include <string>

namespace platform {

// Why a service could not do what it was asked for. It is a plain value for any thread.
struct NSError {
    std::string localizedDescription; // a sentence for people

    bool operator==(const NSError&) const = default;
};

} // namespace platform
