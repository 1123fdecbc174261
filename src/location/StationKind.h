#pragma once

#include <string_view>

namespace velmaro {

// What the user looks for around a place.
enum class StationKind { gas, evstations, traffic };

// How the picker presents a kind.
struct StationKindAppearance {
    std::string_view icon; // name of a system symbol
    std::string_view title;
    std::string_view explanation;
};

// The kind's name, which is also the route of its page.
std::string_view rawValue(StationKind kind);

const StationKindAppearance& appearance(StationKind kind);

} // namespace velmaro
