#pragma once

#include <nlohmann/json.hpp>
#include <string_view>
#include <vector>

namespace demo {

/// The rows of comma- or semicolon-separated text as objects, keyed by the names in the first
/// line. Quoted cells may hold separators, line breaks and doubled quotation marks. Cells beyond
/// the named ones are dropped; empty lines are no rows. Stops after the given number of rows.
std::vector<nlohmann::json> importedTable(std::string_view text, std::size_t mostRows);

} // namespace demo
