#include "web/LocationScripts.h"

#include "web/PageScripts.h"

#include <array>
#include <charconv>
#include <cmath>

namespace velmaro::LocationScripts {

namespace {

constexpr double leastPlainMagnitude = 0.0001; // below it, numerals have an exponent

// The shortest numeral that reads back as the same number, with at least one decimal place.
std::string shortestNumeral(double number)
{
    const double magnitude = std::abs(number);
    const bool isPlain = magnitude == 0 || magnitude >= leastPlainMagnitude;
    std::array<char, 400> digits; // the largest number has 309 of them
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number,
        isPlain ? std::chars_format::fixed : std::chars_format::scientific)
                         .ptr;
    std::string numeral(digits.data(), end);
    if (isPlain && std::isfinite(number) && numeral.find('.') == std::string::npos)
        numeral += ".0";
    return numeral;
}

} // namespace

std::string handOffLocation(StationKind kind, const PickedLocation& location)
{
    return "(function(){\n  window.__vlOverrideLocation = { lat: "
        + shortestNumeral(location.latitude) + ", lng: " + shortestNumeral(location.longitude)
        + ", label: '" + PageScripts::escapedArgument(location.label) + "' };\n  "
        + PageScripts::showRoute(rawValue(kind)) + "\n})();";
}

} // namespace velmaro::LocationScripts
