#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace demo {

/// A record that the demo account starts with, and the name of its collection.
struct SeededRecord {
    std::string collection;
    nlohmann::json values;
};

} // namespace demo
