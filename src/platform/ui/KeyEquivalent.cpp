#include "platform/ui/KeyEquivalent.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

namespace ui {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 5> namedKeys{{
    {Key::tab, "Tab"},
    {Key::pageUp, "Page Up"},
    {Key::pageDown, "Page Down"},
    {Key::f5, "F5"},
    {Key::f11, "F11"},
}};

} // namespace

std::string label(const KeyEquivalent& keys)
{
    std::string text;
    if (keys.command)
        text += "Ctrl+";
    if (keys.shift)
        text += "Shift+";

    const auto* named = std::ranges::find(
        namedKeys, keys.key, &std::pair<std::string_view, std::string_view>::first);
    if (named != namedKeys.end())
        return text += named->second;
    for (const char character : keys.key)
        text += static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
    return text;
}

} // namespace ui
