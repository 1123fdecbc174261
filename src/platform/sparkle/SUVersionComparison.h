#pragma once

#include <compare>
#include <string_view>

namespace platform {

// Orders versions as people read them: numbers by their value, whatever their length, and a part
// that is missing like zero. A word stands before a number and before nothing, so that "2.0b1" and
// "2.0-rc" come before "2.0". Other characters only separate. Any thread; no text makes it fail.
std::weak_ordering compareVersions(std::string_view left, std::string_view right);

} // namespace platform
