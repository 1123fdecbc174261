#include "http/UrlText.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace demo {

namespace {

bool staysAsItIs(unsigned char character)
{
    return character < 0x80 && (std::isalnum(character) || character == '-' || character == '_');
}

std::string formDecoded(std::string_view text)
{
    std::string spaced(text);
    for (char& character : spaced)
        character = character == '+' ? ' ' : character;
    return percentDecoded(spaced);
}

} // namespace

std::string percentEncoded(std::string_view text)
{
    constexpr char digits[] = "0123456789ABCDEF";
    std::string encoded;
    for (char letter : text) {
        const auto character = static_cast<unsigned char>(letter);
        if (staysAsItIs(character)) {
            encoded += letter;
            continue;
        }
        encoded += '%';
        encoded += digits[character >> 4];
        encoded += digits[character & 0xF];
    }
    return encoded;
}

std::string percentDecoded(std::string_view text)
{
    std::string decoded;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] == '%' && index + 2 < text.size()) {
            unsigned value = 0;
            const char* first = text.data() + index + 1;
            const auto [end, error] = std::from_chars(first, first + 2, value, 16);
            if (error == std::errc() && end == first + 2) {
                decoded += static_cast<char>(value);
                index += 2;
                continue;
            }
        }
        decoded += text[index];
    }
    return decoded;
}

std::map<std::string, std::string> queryItems(std::string_view query)
{
    std::map<std::string, std::string> items;
    while (!query.empty()) {
        const auto item = query.substr(0, query.find('&'));
        query.remove_prefix(std::min(query.size(), item.size() + 1));
        if (item.empty())
            continue;
        const auto equals = item.find('=');
        const auto value =
            equals == std::string_view::npos ? std::string_view() : item.substr(equals + 1);
        items[formDecoded(item.substr(0, equals))] = formDecoded(value);
    }
    return items;
}

} // namespace demo
