#pragma once

#include <string>

namespace platform {

// Why a service could not do what it was asked for.
struct NSError {
    std::string localizedDescription; // a sentence for people

    bool operator==(const NSError&) const = default;
};

} // namespace platform
