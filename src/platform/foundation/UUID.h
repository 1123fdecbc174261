#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

// A universally unique identifier. It is a plain value for any thread, and making one cannot fail.
class UUID {
public:
    // A fresh random one (version 4).
    UUID();

    // Reads the 8-4-4-4-12 form in either case; absent when `text` is anything else.
    static std::optional<UUID> fromString(std::string_view text);

    // Upper-case hexadecimal in 8-4-4-4-12 groups.
    std::string string() const;

    bool operator==(const UUID&) const = default;
    auto operator<=>(const UUID&) const = default;

private:
    explicit UUID(const std::array<std::uint8_t, 16>& bytes)
        : bytes_(bytes)
    {
    }

    std::array<std::uint8_t, 16> bytes_;
};

} // namespace platform
