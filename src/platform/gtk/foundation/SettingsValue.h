#pragma once

#include "platform/foundation/Data.h"

#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gtk {

// What the members of the settings file mean. Each reading is absent, zero or false for a member of
// another type.
namespace SettingsValue {

std::optional<std::vector<std::string>> stringArray(const nlohmann::json& value);

// A fraction is cut off; a number beyond the range becomes the nearest one in it.
std::int64_t integer(const nlohmann::json& value);

bool boolean(const nlohmann::json& value);

// JSON has no bytes: they are written as {"data": "<base64>"}.
std::optional<platform::Data> data(const nlohmann::json& value);
nlohmann::json fromData(const platform::Data& data);

// The members in `text`; absent when it is not one whole JSON object, or one nested beyond all
// reason.
std::optional<nlohmann::json> parse(std::string_view text);

// Indented, for people to read. What is not UTF-8 inside a text is replaced.
std::string text(const nlohmann::json& members);

} // namespace SettingsValue

} // namespace gtk
