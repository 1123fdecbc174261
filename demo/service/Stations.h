#pragma once

#include "data/Gazetteer.h"

#include <nlohmann/json.hpp>
#include <string_view>

namespace demo {

/// What the finder pages show around a place, nearest first: gas stations for "gas", charging
/// stations for "evstations", traffic alerts for "traffic". Empty for any other kind.
nlohmann::json stationsAround(Coordinate, std::string_view kind);

} // namespace demo
