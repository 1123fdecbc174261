#include "platform/foundation/UUID.h"

#include <algorithm>
#include <cassert>
#include <unistd.h>

namespace platform {

namespace {

constexpr std::array<std::size_t, 4> hyphenPositions = {8, 13, 18, 23};

bool isHyphenPosition(std::size_t position)
{
    return std::ranges::find(hyphenPositions, position) != hyphenPositions.end();
}

std::optional<std::uint8_t> hexDigit(char character)
{
    if (character >= '0' && character <= '9')
        return static_cast<std::uint8_t>(character - '0');
    if (character >= 'a' && character <= 'f')
        return static_cast<std::uint8_t>(character - 'a' + 10);
    if (character >= 'A' && character <= 'F')
        return static_cast<std::uint8_t>(character - 'A' + 10);
    return std::nullopt;
}

} // namespace

UUID::UUID()
    : bytes_{}
{
    // Fails only for more bytes than are asked for here.
    [[maybe_unused]] const int status = getentropy(bytes_.data(), bytes_.size());
    assert(status == 0);
    bytes_[6] = static_cast<std::uint8_t>((bytes_[6] & 0x0f) | 0x40);
    bytes_[8] = static_cast<std::uint8_t>((bytes_[8] & 0x3f) | 0x80);
}

std::optional<UUID> UUID::fromString(std::string_view text)
{
    if (text.size() != 36)
        return std::nullopt;

    std::array<std::uint8_t, 16> bytes{};
    std::size_t digits = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isHyphenPosition(i)) {
            if (text[i] != '-')
                return std::nullopt;
            continue;
        }
        const auto digit = hexDigit(text[i]);
        if (!digit)
            return std::nullopt;
        auto& byte = bytes[digits++ / 2];
        byte = static_cast<std::uint8_t>((byte << 4) | *digit);
    }
    return UUID(bytes);
}

std::string UUID::string() const
{
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string text;
    for (const auto byte : bytes_) {
        if (isHyphenPosition(text.size()))
            text += '-';
        text += digits[byte >> 4];
        text += digits[byte & 0x0f];
    }
    return text;
}

} // namespace platform
