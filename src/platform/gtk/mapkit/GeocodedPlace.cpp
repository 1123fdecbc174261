#include "platform/gtk/mapkit/GeocodedPlace.h"

#include "platform/foundation/JSONSerialization.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace gtk {

using platform::Value;

namespace {

// In these countries the number of a house comes before the name of its street.
constexpr std::string_view numberFirstCountries[] = {
    "AU", "CA", "FR", "GB", "IE", "IN", "LU", "MC", "NZ", "SG", "US", "ZA"};

// The map data gives these keys to what is part of an address rather than somewhere to go.
constexpr std::string_view addressKeys[] = {"place", "highway", "boundary", "building"};

// Characters that end a line, besides the control characters.
constexpr std::string_view lineBreaks[] = {"\u0085", "\u2028", "\u2029"};

constexpr const char* areaNames[] = {"city", "state", "country"};

template <class Names> bool contains(const Names& names, const std::string& name)
{
    return std::ranges::find(names, name) != std::end(names);
}

// Reads a text and makes it one line, since scripts and rows have no room for more.
std::string text(const Value& properties, const char* name)
{
    const auto* member = properties.member(name);
    const auto* string = member ? member->string() : nullptr;
    std::string result = string ? *string : "";
    std::ranges::replace_if(
        result, [](unsigned char character) { return character < ' ' || character == 0x7f; }, ' ');
    for (const auto lineBreak : lineBreaks) {
        for (auto at = result.find(lineBreak); at != result.npos; at = result.find(lineBreak, at))
            result.replace(at, lineBreak.size(), " ");
    }
    return result;
}

std::string streetAddress(const Value& properties)
{
    auto street = text(properties, "street");
    const auto number = text(properties, "housenumber");
    if (street.empty() || number.empty())
        return street;
    return contains(numberFirstCountries, text(properties, "countrycode")) ? number + " " + street
                                                                           : street + " " + number;
}

// Joins the parts that are not empty, each of them once, and without `title`.
std::string joined(const std::vector<std::string>& parts, const std::string& title)
{
    std::vector<std::string> said = {"", title};
    std::string result;
    for (const auto& part : parts) {
        if (contains(said, part))
            continue;
        result += (result.empty() ? "" : ", ") + part;
        said.push_back(part);
    }
    return result;
}

std::optional<platform::CLLocationCoordinate2D> coordinate(const Value& feature)
{
    const auto* geometry = feature.member("geometry");
    const auto* member = geometry ? geometry->member("coordinates") : nullptr;
    const auto* coordinates = member ? member->array() : nullptr;
    if (!coordinates || coordinates->size() < 2)
        return std::nullopt;
    const auto* longitude = (*coordinates)[0].number();
    const auto* latitude = (*coordinates)[1].number();
    if (!longitude || !latitude || std::abs(*latitude) > 90 || std::abs(*longitude) > 180)
        return std::nullopt;
    return platform::CLLocationCoordinate2D{.latitude = *latitude, .longitude = *longitude};
}

std::optional<GeocodedPlace> place(const Value& feature)
{
    const auto* properties = feature.member("properties");
    const auto where = coordinate(feature);
    if (!properties || !where)
        return std::nullopt;

    const auto address = streetAddress(*properties);
    auto title = text(*properties, "name");
    if (title.empty())
        title = address;
    std::vector<std::string> parts = {address};
    for (const auto* name : areaNames)
        parts.push_back(text(*properties, name));
    if (title.empty()) // some regions have no name of their own
        title = joined(parts, "");
    if (title.empty())
        return std::nullopt;
    return GeocodedPlace{
        .title = title,
        .subtitle = joined(parts, title),
        .coordinate = *where,
        .isAddress = contains(addressKeys, text(*properties, "osm_key")),
    };
}

bool readsLike(const GeocodedPlace& first, const GeocodedPlace& second)
{
    return first.title == second.title && first.subtitle == second.subtitle;
}

} // namespace

std::optional<std::vector<GeocodedPlace>> GeocodedPlace::fromAnswer(const std::string& json)
{
    const auto answer = platform::JSONSerialization::decode(json);
    const auto* member = answer ? answer->member("features") : nullptr;
    const auto* features = member ? member->array() : nullptr;
    if (!features)
        return std::nullopt;

    std::vector<GeocodedPlace> places;
    for (const auto& feature : *features) {
        auto next = place(feature);
        if (next && std::ranges::none_of(places, [&](const auto& earlier) {
                return readsLike(earlier, *next);
            }))
            places.push_back(std::move(*next));
    }
    return places;
}

} // namespace gtk
