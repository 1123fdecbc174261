#pragma once

#include <optional>
#include <string>

namespace platform {

// What the installed application says of itself. The platform owns it. Main thread only; what is
// missing is an absence and never an error.
class Bundle {
public:
    static Bundle& main();

    virtual ~Bundle() = default;

    // A text of the information dictionary, such as "CFBundleShortVersionString"; absent when there
    // is none or it is not a text.
    virtual std::optional<std::string> stringForInfoDictionaryKey(const std::string& key) const = 0;
};

} // namespace platform
