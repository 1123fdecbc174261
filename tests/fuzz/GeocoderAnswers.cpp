// What a service that finds places answers.

#include "fuzz/Target.h"
#include "fuzz/Utf8.h"
#include "platform/gtk/mapkit/GeocodedPlace.h"

#include <cmath>
#include <set>
#include <string>
#include <utility>

using fuzz::require;
using gtk::GeocodedPlace;

namespace {

bool isOneLine(const std::string& text)
{
    const auto characters = fuzz::charactersOf(text);
    if (!characters)
        return false;
    for (const char32_t character : *characters) {
        if (character < 0x20 || character == 0x7F || character == 0x85 || character == 0x2028
            || character == 0x2029)
            return false;
    }
    return true;
}

void tryAnswer(const std::string& answer)
{
    const auto places = GeocodedPlace::fromAnswer(answer);
    if (!places)
        return;
    std::set<std::pair<std::string, std::string>> rows;
    for (const auto& place : *places) {
        require(!place.title.empty(), "a place has a name");
        require(isOneLine(place.title) && isOneLine(place.subtitle), "a text is one line");
        require(std::abs(place.coordinate.latitude) <= 90, "a place is on the globe");
        require(std::abs(place.coordinate.longitude) <= 180, "a place is on the globe");
        require(rows.emplace(place.title, place.subtitle).second, "no two places read alike");
    }
}

} // namespace

void fuzz::tryInput(std::string_view input)
{
    const std::string text(input);
    tryAnswer(text);

    // A single place whose properties and position are the input.
    tryAnswer(
        R"({"features":[{"geometry":{"coordinates":[8.5,47.4]},"properties":)" + text + "}]}");
}
