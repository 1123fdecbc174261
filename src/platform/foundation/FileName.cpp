#include "platform/foundation/FileName.h"

#include "platform/foundation/Unicode.h"

#include <glib.h>

namespace platform {

namespace {

constexpr std::size_t maximumLength = 240; // bytes; file systems hold 255
constexpr std::size_t maximumExtensionLength = 40; // with the dot; longer ones are no extensions

bool isTurningWriting(gunichar character)
{
    return (character >= 0x202A && character <= 0x202E)
        || (character >= 0x2066 && character <= 0x2069) || character == 0x200E
        || character == 0x200F || character == 0x061C;
}

bool isOutOfPlace(gunichar character)
{
    const auto type = g_unichar_type(character);
    return character == '/' || type == G_UNICODE_CONTROL || type == G_UNICODE_LINE_SEPARATOR
        || type == G_UNICODE_PARAGRAPH_SEPARATOR || isTurningWriting(character);
}

std::string replacingOutOfPlace(const std::string& text)
{
    std::string result;
    const char* const end = text.data() + text.size();
    for (const char* at = text.data(); at < end;) {
        const char* const next = g_utf8_next_char(at);
        if (isOutOfPlace(g_utf8_get_char(at)))
            result += '_';
        else
            result.append(at, next);
        at = next;
    }
    return result;
}

// The longest beginning of `text` that has at most `length` bytes and ends with a whole character.
std::string_view beginning(std::string_view text, std::size_t length)
{
    if (text.size() <= length)
        return text;
    const auto isContinuation = [](char byte) { return (byte & 0xC0) == 0x80; };
    while (length > 0 && isContinuation(text[length]))
        --length;
    return text.substr(0, length);
}

std::string shortened(const std::string& name)
{
    if (name.size() <= maximumLength)
        return name;
    const auto dot = name.rfind('.');
    const bool hasExtension =
        dot != std::string::npos && dot > 0 && name.size() - dot <= maximumExtensionLength;
    const auto extension = hasExtension ? name.substr(dot) : std::string();
    return trimmingWhitespace(beginning(name, maximumLength - extension.size())) + extension;
}

} // namespace

std::string safeFileName(std::string_view suggestion)
{
    const std::string text(suggestion);
    auto name = replacingOutOfPlace(isUTF8(text) ? text : fromLatin1(text));
    name = trimmingWhitespace(name);
    while (name.starts_with('.')) // which would hide it, and is no name when it is all there is
        name = trimmingWhitespace(name.substr(1));
    return name.empty() ? "download" : shortened(name);
}

} // namespace platform
