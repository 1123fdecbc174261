#include "platform/foundation/PercentEncoding.h"

#include <algorithm>

namespace platform {

namespace {

// What may stand in each part of an address beside letters and digits.
constexpr std::string_view authorityMarks = "-._~!$&'()*+,;=:@";
constexpr std::string_view bracketedAuthorityMarks = "-._~!$&'()*+,;=:@[]";
constexpr std::string_view pathMarks = "-._~!$&'()*+,;=:@/";
constexpr std::string_view queryMarks = "-._~!$&'()*+,;=:@/?"; // the fragment's as well

bool isLetterOrDigit(char letter)
{
    return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z')
        || (letter >= '0' && letter <= '9');
}

bool isHexDigit(char letter)
{
    const char lower = static_cast<char>(letter | 0x20);
    return (letter >= '0' && letter <= '9') || (lower >= 'a' && lower <= 'f');
}

int hexValue(char digit)
{
    return digit <= '9' ? digit - '0' : (digit | 0x20) - 'a' + 10;
}

void appendEscape(std::string& text, char letter)
{
    constexpr auto digits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(letter);
    text += {'%', digits[byte >> 4], digits[byte & 15]};
}

bool isEscape(std::string_view text)
{
    return text.size() >= 3 && text[0] == '%' && isHexDigit(text[1]) && isHexDigit(text[2]);
}

void appendEncoded(std::string& encoded, std::string_view part, std::string_view allowedMarks)
{
    for (std::size_t i = 0; i < part.size(); ++i) {
        const char letter = part[i];
        if (isLetterOrDigit(letter) || allowedMarks.find(letter) != allowedMarks.npos
            || isEscape(part.substr(i)))
            encoded += letter;
        else
            appendEscape(encoded, letter);
    }
}

// Takes what stands before the first of `delimiters` away from `rest`.
std::string_view takeUntil(std::string_view& rest, std::string_view delimiters)
{
    const auto length = std::min(rest.find_first_of(delimiters), rest.size());
    const auto taken = rest.substr(0, length);
    rest.remove_prefix(length);
    return taken;
}

bool isBracketed(std::string_view authority)
{
    const auto at = authority.rfind('@');
    return authority.substr(at == authority.npos ? 0 : at + 1).starts_with('[');
}

} // namespace

std::string percentDecoded(std::string_view text)
{
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%') {
            decoded += static_cast<char>(hexValue(text[i + 1]) * 16 + hexValue(text[i + 2]));
            i += 2;
        } else {
            decoded += text[i];
        }
    }
    return decoded;
}

std::string percentEncodedPath(std::string_view path)
{
    std::string encoded;
    for (const char letter : path) {
        if (isLetterOrDigit(letter) || pathMarks.find(letter) != pathMarks.npos)
            encoded += letter;
        else
            appendEscape(encoded, letter);
    }
    return encoded;
}

std::string withInvalidCharactersEncoded(std::string_view address)
{
    std::string encoded;
    auto rest = address;
    if (const auto colon = address.find_first_of(":/?#");
        colon != address.npos && address[colon] == ':') {
        encoded = address.substr(0, colon + 1);
        rest.remove_prefix(colon + 1);
    }
    if (rest.starts_with("//")) {
        encoded += "//";
        rest.remove_prefix(2);
        const auto authority = takeUntil(rest, "/?#");
        appendEncoded(
            encoded, authority, isBracketed(authority) ? bracketedAuthorityMarks : authorityMarks);
    }
    appendEncoded(encoded, takeUntil(rest, "?#"), pathMarks);
    if (rest.starts_with('?')) {
        encoded += '?';
        rest.remove_prefix(1);
        appendEncoded(encoded, takeUntil(rest, "#"), queryMarks);
    }
    if (rest.starts_with('#')) {
        encoded += '#';
        appendEncoded(encoded, rest.substr(1), queryMarks);
    }
    return encoded;
}

} // namespace platform
