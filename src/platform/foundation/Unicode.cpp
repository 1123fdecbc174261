#include "platform/foundation/Unicode.h"

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

// The length in bytes of the blank at the start of a text that is not empty; 0 when there is none.
std::size_t blankAtStart(std::string_view text)
{
    const auto character = g_utf8_get_char_validated(text.data(), static_cast<gssize>(text.size()));
    return isBlank(character) ? static_cast<std::size_t>(g_unichar_to_utf8(character, nullptr)) : 0;
}

std::size_t blankAtEnd(std::string_view text)
{
    const auto* last = g_utf8_find_prev_char(text.data(), text.data() + text.size());
    if (!last)
        return 0;
    const auto tail = text.substr(static_cast<std::size_t>(last - text.data()));
    return blankAtStart(tail) == tail.size() ? tail.size() : 0;
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
    while (!text.empty()) {
        const auto length = blankAtStart(text);
        if (!length)
            break;
        text.remove_prefix(length);
    }
    while (!text.empty()) {
        const auto length = blankAtEnd(text);
        if (!length)
            break;
        text.remove_suffix(length);
    }
    return std::string(text);
}

} // namespace platform
