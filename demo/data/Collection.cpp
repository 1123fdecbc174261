#include "data/Collection.h"

#include "data/Dates.h"

#include <charconv>
#include <cmath>
#include <regex>
#include <stdexcept>

namespace demo {

namespace {

constexpr std::size_t longestText = 2000;

std::invalid_argument unfit(const Field& field, const char* expectation)
{
    return std::invalid_argument("\"" + std::string(field.name) + "\" needs " + expectation + ".");
}

nlohmann::json defaultValue(const Field& field)
{
    switch (field.kind) {
    case FieldKind::date:
        return dateText(today);
    case FieldKind::time:
        return "12:00";
    case FieldKind::number:
        return 0;
    case FieldKind::text:
        break;
    }
    return "";
}

nlohmann::json numberValue(const Field& field, const nlohmann::json& value)
{
    double number = 0;
    if (value.is_number()) {
        number = value.get<double>();
    } else {
        const auto& text = value.get_ref<const std::string&>();
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error != std::errc() || end != text.data() + text.size())
            throw unfit(field, "a number");
    }
    if (!std::isfinite(number) || number < 0 || number > 1e9)
        throw unfit(field, "a number that is not negative and not enormous");
    if (number == std::floor(number))
        return static_cast<long long>(number);
    return number;
}

nlohmann::json textValue(const Field& field, const std::string& text)
{
    static const std::regex date(R"(\d{4}-(0[1-9]|1[0-2])-(0[1-9]|[12]\d|3[01]))");
    static const std::regex time(R"(([01]\d|2[0-3]):[0-5]\d)");
    if (text.size() > longestText)
        throw unfit(field, "a shorter text");
    if (field.kind == FieldKind::date && !std::regex_match(text, date))
        throw unfit(field, "a date such as 2026-10-31");
    if (field.kind == FieldKind::time && !std::regex_match(text, time))
        throw unfit(field, "a time such as 08:30");
    return text;
}

nlohmann::json fittingValue(const Field& field, const nlohmann::json& values)
{
    const auto found = values.find(field.name);
    const bool isAbsent = found == values.end() || found->is_null()
        || (found->is_string() && found->get_ref<const std::string&>().empty());
    if (isAbsent && field.isRequired)
        throw unfit(field, "a value");
    if (isAbsent)
        return defaultValue(field);
    if (!found->is_string() && !(field.kind == FieldKind::number && found->is_number()))
        throw unfit(field, "a text");
    return field.kind == FieldKind::number ? numberValue(field, *found)
                                           : textValue(field, found->get_ref<const std::string&>());
}

std::string cell(const nlohmann::json& value)
{
    if (!value.is_string())
        return value.dump();
    std::string text = value.get<std::string>();
    if (text.find_first_of("\",\r\n") == std::string::npos)
        return text;
    for (std::size_t at = 0; (at = text.find('"', at)) != std::string::npos; at += 2)
        text.insert(at, 1, '"');
    return '"' + text + '"';
}

} // namespace

Collection::Collection(std::span<const Field> fields)
    : fields_(fields)
{
}

const nlohmann::json& Collection::add(const nlohmann::json& values)
{
    if (!values.is_object())
        throw std::invalid_argument("A record is an object.");
    nlohmann::json record{{"id", records_.size() + 1}};
    for (const Field& field : fields_)
        record[field.name] = fittingValue(field, values);
    return records_.emplace_back(std::move(record));
}

const nlohmann::json* Collection::find(int id) const
{
    if (id < 1 || static_cast<std::size_t>(id) > records_.size())
        return nullptr;
    return &records_[static_cast<std::size_t>(id) - 1];
}

std::string Collection::commaSeparated() const
{
    std::string text = "id";
    for (const Field& field : fields_)
        text += std::string(",") + field.name;
    for (const auto& record : records_) {
        text += "\r\n" + cell(record["id"]);
        for (const Field& field : fields_)
            text += "," + cell(record[field.name]);
    }
    return text + "\r\n";
}

} // namespace demo
