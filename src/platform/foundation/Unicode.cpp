#include "platform/foundation/Unicode.h"

#include <algorithm>
#include <glib.h>
#include <memory>
#include <optional>

namespace platform {

namespace {

struct FreeText {
    void operator()(gchar* text) const { g_free(text); }
};

// The text in canonical decomposition; absent when it is not UTF-8. GLib ends a text at a NUL, so
// what stands between them is taken piece by piece.
std::optional<std::string> canonicallyDecomposed(std::string_view text)
{
    std::string result;
    while (true) {
        const auto piece = text.substr(0, text.find('\0'));
        const std::unique_ptr<gchar, FreeText> decomposed(
            g_utf8_normalize(piece.data(), static_cast<gssize>(piece.size()), G_NORMALIZE_NFD));
        if (!decomposed)
            return std::nullopt;
        result += decomposed.get();
        if (piece.size() == text.size())
            return result;
        result += '\0';
        text.remove_prefix(piece.size() + 1);
    }
}

// A tab, or a blank of any script: the general category Zs.
bool isBlank(gunichar character)
{
    return character == '\t' || g_unichar_type(character) == G_UNICODE_SPACE_SEPARATOR;
}

// A line feed, carriage return and their like, or a line or paragraph separator.
bool isNewline(gunichar character)
{
    return (character >= '\n' && character <= '\r') || character == 0x85 || character == 0x2028
        || character == 0x2029;
}

bool isBlankOrNewline(gunichar character)
{
    return isBlank(character) || isNewline(character);
}

using Predicate = bool (*)(gunichar character);

// The length in bytes of the first character of a text that is not empty; 0 when it is not one of
// those to be trimmed.
std::size_t trimmableAtStart(std::string_view text, Predicate isTrimmed)
{
    const auto character = g_utf8_get_char_validated(text.data(), static_cast<gssize>(text.size()));
    return isTrimmed(character) ? static_cast<std::size_t>(g_unichar_to_utf8(character, nullptr))
                                : 0;
}

std::size_t trimmableAtEnd(std::string_view text, Predicate isTrimmed)
{
    const auto* last = g_utf8_find_prev_char(text.data(), text.data() + text.size());
    if (!last)
        return 0;
    const auto tail = text.substr(static_cast<std::size_t>(last - text.data()));
    return trimmableAtStart(tail, isTrimmed) == tail.size() ? tail.size() : 0;
}

std::string trimming(std::string_view text, Predicate isTrimmed)
{
    while (!text.empty()) {
        const auto length = trimmableAtStart(text, isTrimmed);
        if (!length)
            break;
        text.remove_prefix(length);
    }
    while (!text.empty()) {
        const auto length = trimmableAtEnd(text, isTrimmed);
        if (!length)
            break;
        text.remove_suffix(length);
    }
    return std::string(text);
}

} // namespace

bool isCanonicallyEquivalent(std::string_view left, std::string_view right)
{
    if (left == right)
        return true;
    const auto decomposed = canonicallyDecomposed(left);
    return decomposed && decomposed == canonicallyDecomposed(right);
}

std::string trimmingWhitespace(std::string_view text)
{
    return trimming(text, isBlank);
}

std::string trimmingWhitespaceAndNewlines(std::string_view text)
{
    return trimming(text, isBlankOrNewline);
}

std::string lowercasingASCII(std::string_view text)
{
    std::string result(text);
    std::ranges::transform(result, result.begin(), g_ascii_tolower);
    return result;
}

bool isUTF8(std::string_view bytes)
{
    // GLib takes a NUL for the end, so what stands between them is looked at piece by piece.
    while (true) {
        const auto piece = bytes.substr(0, bytes.find('\0'));
        if (!g_utf8_validate(piece.data(), static_cast<gssize>(piece.size()), nullptr))
            return false;
        if (piece.size() == bytes.size())
            return true;
        bytes.remove_prefix(piece.size() + 1);
    }
}

std::string fromLatin1(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (const char byte : bytes) {
        const auto letter = static_cast<unsigned char>(byte);
        if (letter < 0x80) {
            text += byte;
        } else {
            text += static_cast<char>(0xC0 | (letter >> 6));
            text += static_cast<char>(0x80 | (letter & 0x3F));
        }
    }
    return text;
}

} // namespace platform
