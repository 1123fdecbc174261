#include "platform/foundation/JSONSerialization.h"

#include <cmath>
#include <nlohmann/json.hpp>

namespace platform::JSONSerialization {

namespace {

using Json = nlohmann::json;

constexpr int maximumDepth =
    500; // lists and objects inside each other; values are walked on the stack

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

} // namespace

std::optional<Value> decode(std::string_view text)
{
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

} // namespace platform::JSONSerialization
