#pragma once

#include <string>
#include <string_view>

namespace ui {

// A key that does what a menu item does, with the modifiers that are held with it.
struct KeyEquivalent {
    // What the key writes in lower case, or one of the names below. Of static storage.
    std::string_view key;
    bool command = false; // Ctrl on this desktop
    bool shift = false;

    bool operator==(const KeyEquivalent&) const = default;
};

namespace Key {
inline constexpr std::string_view tab = "tab";
inline constexpr std::string_view pageUp = "pageUp";
inline constexpr std::string_view pageDown = "pageDown";
inline constexpr std::string_view f5 = "f5";
inline constexpr std::string_view f11 = "f11";
}

constexpr KeyEquivalent command(std::string_view key)
{
    return {.key = key, .command = true};
}

constexpr KeyEquivalent shiftCommand(std::string_view key)
{
    return {.key = key, .command = true, .shift = true};
}

// As people read it on this desktop: "Ctrl+Shift+T".
std::string label(const KeyEquivalent& keys);

} // namespace ui
