#pragma once

#include <cstdint>
#include <string>

namespace platform {

// One version on offer, as a feed tells of it. Nothing of it has been verified. It is a plain
// value.
struct SUAppcastItem {
    std::string versionString; // as versions are compared: the build
    std::string displayVersionString; // as people know it
    std::string itemDescription; // what is new, as plain text; may be empty
    std::string fileURL; // of the package
    std::uint64_t contentLength = 0; // bytes of the package
    std::string edSignature; // of the package, in Base64; empty where there is none

    bool operator==(const SUAppcastItem&) const = default;
};

} // namespace platform
