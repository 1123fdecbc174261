#include "service/Geocoder.h"

#include "data/Gazetteer.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <glib.h>
#include <memory>
#include <optional>

namespace demo {

namespace {

using nlohmann::json;

constexpr int mostPlaces = 50;

using Words = std::unique_ptr<char*, decltype(&g_strfreev)>;

/// A place, perhaps with a house in it.
struct Match {
    const Place* place;
    std::string houseNumber;
};

bool isHouseNumber(const std::string& word)
{
    const auto digits = word.find_first_not_of("0123456789"); // A letter may follow, as in "12b".
    return word[0] != '0' && word.size() <= 4 && digits > 0
        && (digits == std::string::npos || digits + 1 == word.size());
}

/// The text without its first house number, which is handed out.
std::string withoutHouseNumber(const std::string& text, std::string& houseNumber)
{
    std::string rest;
    const Words words(g_strsplit_set(text.c_str(), " ,\t", -1), g_strfreev);
    for (char** word = words.get(); *word; ++word) {
        if (houseNumber.empty() && **word && isHouseNumber(*word))
            houseNumber = *word;
        else
            rest.append(*word).append(" ");
    }
    if (rest.find_first_not_of(' ') != std::string::npos)
        return rest;
    houseNumber.clear(); // A number alone is no house.
    return text;
}

std::string wordsOf(const Place& place)
{
    std::string words(place.name);
    for (std::string_view part : {place.street, place.district, std::string_view("Ellery")})
        words.append(" ").append(part);
    return words;
}

/// Accents may be left out, and words may be cut short.
bool matches(const std::string& text, const std::string& words)
{
    return g_str_match_string(text.c_str(), words.c_str(), TRUE);
}

json feature(const Match& match)
{
    const Place& place = *match.place;
    const auto index = static_cast<int>(match.place - gazetteer().data());
    const int number = match.houseNumber.empty() ? 0 : std::atoi(match.houseNumber.c_str());
    const bool isHouse = number > 0;
    json properties{
        {"osm_type", isHouse ? "N" : "W"},
        {"osm_id", 9'000'000 + index * 10'000 + number},
        {"osm_key", isHouse ? "place" : place.key},
        {"osm_value", isHouse ? "house" : place.value},
        {"type",
            isHouse                      ? "house"
                : place.key == "highway" ? "street"
                                         : place.value},
        {"country", "Ellery Islands"},
        {"countrycode", "XE"},
    };
    if (isHouse) {
        properties["housenumber"] = match.houseNumber;
        properties["street"] = place.name;
    } else {
        properties["name"] = place.name;
    }
    if (!place.street.empty())
        properties["street"] = place.street;
    if (!place.district.empty()) {
        properties["district"] = place.district;
        properties["city"] = "Ellery";
        properties["postcode"] = "E" + std::to_string(100 + place.district.size());
    }
    const double along = number * 0.00004; // A street with a house every few metres.
    return {
        {"type", "Feature"},
        {"geometry",
            {{"type", "Point"},
                {"coordinates", {place.longitude() + along, place.latitude() + along / 2}}}},
        {"properties", std::move(properties)},
    };
}

Answer collection(const std::vector<Match>& matches)
{
    auto features = json::array();
    for (const auto& match : matches)
        features.push_back(feature(match));
    return jsonAnswer({{"type", "FeatureCollection"}, {"features", std::move(features)}})
        .with("Access-Control-Allow-Origin", "*");
}

std::optional<double> number(const std::string& text)
{
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<Coordinate> centre(const Request& request)
{
    const auto latitude = number(request.queryItem("lat"));
    const auto longitude = number(request.queryItem("lon"));
    if (!latitude || !longitude || std::abs(*latitude) > 90 || std::abs(*longitude) > 180)
        return std::nullopt;
    return Coordinate{*latitude, *longitude};
}

void keepNearest(std::vector<Match>& matches, const std::optional<Coordinate>& centre, int limit)
{
    if (centre) {
        std::stable_sort(
            matches.begin(), matches.end(), [&](const Match& first, const Match& second) {
                return kilometresBetween(first.place->coordinate(), *centre)
                    < kilometresBetween(second.place->coordinate(), *centre);
            });
    }
    if (matches.size() > static_cast<std::size_t>(limit))
        matches.resize(static_cast<std::size_t>(limit));
}

} // namespace

Answer searchAnswer(const Request& request)
{
    const std::string query = request.queryItem("q");
    if (query.find_first_not_of(" \t") == std::string::npos)
        return errorAnswer(400, "The parameter q is missing or blank.");
    if (!g_utf8_validate(query.data(), static_cast<gssize>(query.size()), nullptr))
        return errorAnswer(400, "The parameter q is no UTF-8 text.");

    std::string houseNumber;
    const std::string text = withoutHouseNumber(query, houseNumber);
    std::vector<Match> named;
    std::vector<Match> others;
    for (const Place& place : gazetteer()) {
        if (place.key == "hazard" || !matches(text, wordsOf(place)))
            continue;
        const bool isStreet = place.key == "highway";
        const bool isNamed = matches(text, std::string(place.name));
        (isNamed ? named : others).push_back({&place, isStreet ? houseNumber : std::string()});
    }
    const int limit = std::clamp(request.queryNumber("limit", 15), 1, mostPlaces);
    keepNearest(named, centre(request), limit);
    keepNearest(others, centre(request), limit - static_cast<int>(named.size()));
    named.insert(named.end(), others.begin(), others.end());
    return collection(named);
}

Answer reverseAnswer(const Request& request)
{
    const auto here = centre(request);
    if (!here)
        return errorAnswer(400, "The parameters lat and lon need to be coordinates.");
    std::vector<Match> nearest;
    for (const Place& place : gazetteer()) {
        if (place.key != "hazard")
            nearest.push_back({&place, {}});
    }
    keepNearest(nearest, here, std::clamp(request.queryNumber("limit", 1), 1, mostPlaces));
    return collection(nearest);
}

} // namespace demo
