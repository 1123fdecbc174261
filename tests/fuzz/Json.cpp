// Texts to values and back, and texts as they stand in scripts.

#include "fuzz/Target.h"
#include "fuzz/Utf8.h"
#include "platform/foundation/JSONSerialization.h"

#include <string>

using fuzz::require;
namespace JSONSerialization = platform::JSONSerialization;

namespace {

void tryValue(std::string_view text)
{
    const auto value = JSONSerialization::decode(text);
    if (!value)
        return;
    require(fuzz::charactersOf(text).has_value(), "JSON is UTF-8");
    require(text.find('\0') == text.npos, "JSON is read to its end");
    const auto encoded = JSONSerialization::encode(*value);
    require(encoded.has_value(), "what came from JSON can become JSON");
    require(encoded->find('\n') == encoded->npos, "a value is one line");
    require(JSONSerialization::decode(*encoded) == value, "a value comes back");
}

void tryString(std::string_view text)
{
    const std::string before = "before";
    auto json = before;
    const bool isAppended = JSONSerialization::appendString(json, text);
    require(isAppended == fuzz::charactersOf(text).has_value(), "a string is UTF-8");
    if (!isAppended)
        return require(json == before, "what is no text leaves no trace");

    const auto literal = json.substr(before.size());
    require(JSONSerialization::decode(literal) == platform::Value(std::string(text)),
        "a text comes back from its literal");
    for (const char character : literal)
        require(
            static_cast<unsigned char>(character) >= 0x20, "a literal has no control character");
}

} // namespace

void fuzz::tryInput(std::string_view input)
{
    tryValue(input);
    tryString(input);
}
