#include "platform/foundation/JSONSerialization.h"

#include "platform/foundation/Unicode.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <nlohmann/json.hpp>

namespace platform::JSONSerialization {

namespace {

using Json = nlohmann::json;

// Of lists and objects inside each other, since values are walked on the stack.
constexpr int maximumDepth = 500;

Value valueFrom(Json& json)
{
    switch (json.type()) {
    case Json::value_t::boolean:
        return json.get<bool>();
    case Json::value_t::number_integer:
    case Json::value_t::number_unsigned:
    case Json::value_t::number_float:
        return json.get<double>();
    case Json::value_t::string:
        return std::move(json.get_ref<std::string&>());
    case Json::value_t::array: {
        Value::Array array;
        array.reserve(json.size());
        for (auto& element : json)
            array.push_back(valueFrom(element));
        return array;
    }
    case Json::value_t::object: {
        Value::Object object;
        for (auto& [name, member] : json.items())
            object.emplace(name, valueFrom(member));
        return object;
    }
    default:
        return nullptr;
    }
}

std::optional<Json> jsonFrom(const Value& value)
{
    if (const auto* boolean = value.boolean())
        return *boolean;
    if (const auto* number = value.number()) {
        if (!std::isfinite(*number))
            return std::nullopt;
        return *number;
    }
    if (const auto* string = value.string())
        return *string;
    if (const auto* array = value.array()) {
        auto json = Json::array();
        for (const auto& element : *array) {
            auto converted = jsonFrom(element);
            if (!converted)
                return std::nullopt;
            json.push_back(std::move(*converted));
        }
        return json;
    }
    if (const auto* object = value.object()) {
        auto json = Json::object();
        for (const auto& [name, member] : *object) {
            auto converted = jsonFrom(member);
            if (!converted)
                return std::nullopt;
            json[name] = std::move(*converted);
        }
        return json;
    }
    return Json();
}

// The escape that has a letter of its own; 0 where there is none.
constexpr char shortEscape(char character)
{
    switch (character) {
    case '"':
    case '\\':
        return character;
    case '\b':
        return 'b';
    case '\f':
        return 'f';
    case '\n':
        return 'n';
    case '\r':
        return 'r';
    case '\t':
        return 't';
    default:
        return 0;
    }
}

constexpr auto escapedLengths = [] {
    std::array<std::uint8_t, 256> lengths = {};
    for (std::size_t byte = 0; byte < lengths.size(); ++byte)
        lengths[byte] = shortEscape(static_cast<char>(byte)) ? 2 : byte < 0x20 ? 6 : 1;
    return lengths;
}();

std::size_t escapedLength(char character)
{
    return escapedLengths[static_cast<unsigned char>(character)];
}

void appendEscaped(std::string& json, char character)
{
    constexpr std::string_view digits = "0123456789abcdef";
    json += '\\';
    if (const char letter = shortEscape(character)) {
        json += letter;
        return;
    }
    json += "u00";
    json += digits[static_cast<std::size_t>(character) >> 4];
    json += digits[static_cast<std::size_t>(character) & 0xF];
}

} // namespace

std::optional<Value> decode(std::string_view text)
{
    if (text.find('\0') != text.npos) // which the parser would take for the end
        return std::nullopt;
    bool isTooDeep = false;
    const auto keepShallow = [&](int depth, Json::parse_event_t, Json&) {
        isTooDeep = isTooDeep || depth > maximumDepth;
        return !isTooDeep;
    };
    auto json = Json::parse(text, keepShallow, false);
    if (json.is_discarded() || isTooDeep)
        return std::nullopt;
    return valueFrom(json);
}

std::optional<std::string> encode(const Value& value)
{
    const auto json = jsonFrom(value);
    if (!json)
        return std::nullopt;
    try {
        return json->dump();
    } catch (const Json::type_error&) { // a text that is not UTF-8
        return std::nullopt;
    }
}

bool appendString(std::string& json, std::string_view text)
{
    if (!isUTF8(text))
        return false;
    std::size_t length = 2;
    for (const char character : text)
        length += escapedLength(character);
    json.reserve(json.size() + length);

    json += '"';
    const auto* plain = text.begin(); // where what needs no escape begins
    for (const auto* at = text.begin(); at != text.end(); ++at) {
        if (escapedLength(*at) == 1)
            continue;
        json.append(plain, at);
        appendEscaped(json, *at);
        plain = at + 1;
    }
    json.append(plain, text.end());
    json += '"';
    return true;
}

} // namespace platform::JSONSerialization
