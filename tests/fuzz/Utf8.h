#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace fuzz {

// The characters of a text in UTF-8; absent when it is none. Written from the definition of the
// encoding, apart from the library that the program leaves this to.
inline std::optional<std::vector<char32_t>> charactersOf(std::string_view text)
{
    std::vector<char32_t> characters;
    for (std::size_t at = 0; at < text.size();) {
        const auto first = static_cast<unsigned char>(text[at]);
        const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
        if ((first >= 0x80 && first < 0xC2) || first > 0xF4 || at + length > text.size())
            return std::nullopt;
        char32_t character = length == 1 ? first : first & (0x7Fu >> length);
        for (std::size_t next = at + 1; next < at + length; ++next) {
            const auto byte = static_cast<unsigned char>(text[next]);
            if (byte < 0x80 || byte > 0xBF)
                return std::nullopt;
            character = character << 6 | (byte & 0x3Fu);
        }
        const bool isOverlong =
            (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
        const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
        if (isOverlong || isSurrogate || character > 0x10FFFF)
            return std::nullopt;
        characters.push_back(character);
        at += length;
    }
    return characters;
}

} // namespace fuzz
