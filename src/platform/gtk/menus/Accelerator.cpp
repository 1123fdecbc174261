#include "platform/gtk/menus/Accelerator.h"

#include <algorithm>
#include <gtk/gtk.h>

namespace gtk {

namespace {

struct KeyName {
    std::string_view key;
    std::vector<guint> values;
    guint shifted = 0; // what it is with Shift, when that is something else
};

const std::vector<KeyName>& keyNames()
{
    static const std::vector<KeyName> names = {
        {ui::Key::tab, {GDK_KEY_Tab}, GDK_KEY_ISO_Left_Tab},
        {ui::Key::pageUp, {GDK_KEY_Page_Up, GDK_KEY_KP_Page_Up}},
        {ui::Key::pageDown, {GDK_KEY_Page_Down, GDK_KEY_KP_Page_Down}},
        {ui::Key::f5, {GDK_KEY_F5}},
        {ui::Key::f11, {GDK_KEY_F11}},
        {"[", {GDK_KEY_bracketleft}, GDK_KEY_braceleft},
        {"]", {GDK_KEY_bracketright}, GDK_KEY_braceright},
        {"+", {GDK_KEY_plus, GDK_KEY_equal, GDK_KEY_KP_Add}},
        {"-", {GDK_KEY_minus, GDK_KEY_KP_Subtract}},
        {"0", {GDK_KEY_0, GDK_KEY_KP_0}},
    };
    return names;
}

KeyName keyName(std::string_view key)
{
    const auto found = std::ranges::find(keyNames(), key, &KeyName::key);
    if (found != keyNames().end())
        return *found;
    return {key, {gdk_unicode_to_keyval(static_cast<guint32>(key.front()))}};
}

std::string name(guint value, const ui::KeyEquivalent& keys)
{
    unsigned modifiers = 0;
    if (keys.command)
        modifiers |= GDK_CONTROL_MASK;
    if (keys.shift)
        modifiers |= GDK_SHIFT_MASK;
    char* text = gtk_accelerator_name(value, static_cast<GdkModifierType>(modifiers));
    std::string result = text;
    g_free(text);
    return result;
}

} // namespace

std::string shownAccelerator(const ui::KeyEquivalent& keys)
{
    return name(keyName(keys.key).values.front(), keys);
}

std::vector<std::string> accelerators(const std::vector<ui::KeyEquivalent>& shortcuts)
{
    std::vector<std::string> names;
    for (const auto& keys : shortcuts) {
        const auto key = keyName(keys.key);
        if (keys.shift && key.shifted) {
            names.push_back(name(key.shifted, keys));
            continue;
        }
        for (const guint value : key.values)
            names.push_back(name(value, keys));
    }
    return names;
}

} // namespace gtk
