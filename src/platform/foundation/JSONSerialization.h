#pragma once

#include "platform/foundation/Value.h"

#include <optional>
#include <string>
#include <string_view>

namespace platform {

// JSON texts to values and back. For any thread; a text that is refused is an absence and never an
// exception.
namespace JSONSerialization {

// Absent when `text` is not one whole JSON value in UTF-8, or is nested more than 500 deep.
std::optional<Value> decode(std::string_view text);

// One line of UTF-8. Absent when a text inside `value` is not UTF-8, or a number is not finite.
std::optional<std::string> encode(const Value& value);

// Appends `text` as a JSON string to `json`. A text that is not UTF-8 appends nothing, and is
// false.
[[nodiscard]] bool appendString(std::string& json, std::string_view text);

} // namespace JSONSerialization

} // namespace platform
