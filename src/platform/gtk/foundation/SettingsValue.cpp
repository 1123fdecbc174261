#include "platform/gtk/foundation/SettingsValue.h"

#include <cmath>
#include <cstring>
#include <glib.h>
#include <limits>
#include <nlohmann/json.hpp>

namespace gtk::SettingsValue {

namespace {

using Json = nlohmann::json;

constexpr int maximumDepth = 64;
constexpr int indentation = 2;

std::string base64(const platform::Data& data)
{
    auto* text = g_base64_encode(reinterpret_cast<const guchar*>(data.data()), data.size());
    std::string result = text;
    g_free(text);
    return result;
}

} // namespace

std::optional<std::vector<std::string>> stringArray(const Json& value)
{
    if (!value.is_array())
        return std::nullopt;
    std::vector<std::string> strings;
    strings.reserve(value.size());
    for (const auto& element : value) {
        if (!element.is_string())
            return std::nullopt;
        strings.push_back(element.get<std::string>());
    }
    return strings;
}

std::int64_t integer(const Json& value)
{
    using Limits = std::numeric_limits<std::int64_t>;

    if (value.is_number_unsigned() && value.get<std::uint64_t>() > std::uint64_t{Limits::max()})
        return Limits::max();
    if (value.is_number_integer())
        return value.get<std::int64_t>();
    if (!value.is_number_float())
        return 0;

    const auto number = std::trunc(value.get<double>());
    if (number >= 0x1p63)
        return Limits::max();
    if (number < -0x1p63)
        return Limits::min();
    return static_cast<std::int64_t>(number);
}

bool boolean(const Json& value)
{
    if (value.is_boolean())
        return value.get<bool>();
    return value.is_number() && value.get<double>() != 0;
}

std::optional<platform::Data> data(const Json& value)
{
    if (!value.is_object() || value.size() != 1)
        return std::nullopt;
    const auto member = value.find("data");
    if (member == value.end() || !member->is_string())
        return std::nullopt;

    const auto& text = member->get_ref<const std::string&>();
    gsize size = 0;
    auto* bytes = g_base64_decode(text.c_str(), &size);
    platform::Data result(size);
    if (size > 0)
        std::memcpy(result.data(), bytes, size);
    g_free(bytes);

    // The decoder skips whatever is not base64, so only the way back tells whether the text was.
    if (base64(result) != text)
        return std::nullopt;
    return result;
}

Json fromData(const platform::Data& data)
{
    return Json{{"data", base64(data)}};
}

std::optional<Json> parse(std::string_view text)
{
    if (text.find('\0') != text.npos) // which the parser would take for the end
        return std::nullopt;
    bool isTooDeep = false;
    const auto keep = [&isTooDeep](int depth, Json::parse_event_t, Json&) {
        isTooDeep = isTooDeep || depth > maximumDepth;
        return !isTooDeep;
    };
    auto members = Json::parse(text, keep, false);
    if (isTooDeep || !members.is_object())
        return std::nullopt;
    return members;
}

std::string text(const Json& members)
{
    return members.dump(indentation, ' ', false, Json::error_handler_t::replace) + '\n';
}

} // namespace gtk::SettingsValue
