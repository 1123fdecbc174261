// What a server or a page calls a file, and what it is called on the disk.

#include "fuzz/Target.h"
#include "fuzz/Utf8.h"
#include "platform/foundation/FileName.h"

#include <algorithm>
#include <string>

namespace {

constexpr std::size_t maximumLength = 240; // bytes

bool isOutOfPlace(char32_t character)
{
    const bool isControl = character < 0x20 || (character >= 0x7F && character < 0xA0);
    const bool isLineBreak = character == 0x2028 || character == 0x2029;
    const bool turnsWriting = (character >= 0x202A && character <= 0x202E)
        || (character >= 0x2066 && character <= 0x2069) || character == 0x200E
        || character == 0x200F || character == 0x61C;
    return character == '/' || isControl || isLineBreak || turnsWriting;
}

// What needs no change in any language: letters and digits, with dots and hyphens between them.
bool isPlainName(std::string_view text)
{
    constexpr std::string_view letters =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    return !text.empty() && text.size() <= maximumLength && letters.find(text[0]) != letters.npos
        && text.find_first_not_of(std::string(letters) + ".-") == text.npos;
}

} // namespace

void fuzz::tryInput(std::string_view input)
{
    const auto name = platform::safeFileName(input);
    const auto characters = charactersOf(name);
    require(characters.has_value(), "a name is UTF-8");
    require(
        !characters->empty() && name.size() <= maximumLength, "a name has a length it can have");
    require(std::ranges::none_of(*characters, isOutOfPlace), "a name is one visible component");
    require(name[0] != '.' && name[0] != ' ' && name.back() != ' ', "a name shows itself whole");
    require(platform::safeFileName(name) == name, "a safe name stays");
    if (isPlainName(input))
        require(name == input, "a name that is fine stays");

    const auto csv = platform::safeFileName("x" + std::string(input) + ".csv");
    require(csv.ends_with(".csv"), "the extension stays");
}
