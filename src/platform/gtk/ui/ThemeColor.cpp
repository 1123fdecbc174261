#include "platform/gtk/ui/ThemeColor.h"

#include <algorithm>
#include <gtkmm/stylecontext.h>
#include <iterator>

namespace gtk {

namespace {

struct NamedColor {
    ui::Color::Role role;
    const char* name; // in the theme
    double opacity;
};

constexpr NamedColor namedColors[] = {
    {ui::Color::Role::accent, "theme_selected_bg_color", 1},
    {ui::Color::Role::label, "theme_fg_color", 1},
    {ui::Color::Role::secondaryLabel, "theme_fg_color", 0.6},
    {ui::Color::Role::windowBackground, "theme_bg_color", 1},
    {ui::Color::Role::underPageBackground, "theme_bg_color", 1},
    {ui::Color::Role::textBackground, "theme_base_color", 1},
    {ui::Color::Role::material, "theme_bg_color", 0.96},
    {ui::Color::Role::separator, "borders", 1},
};

const NamedColor* nameOf(ui::Color::Role role)
{
    const auto* named = std::ranges::find(namedColors, role, &NamedColor::role);
    return named == std::end(namedColors) ? nullptr : named;
}

Gdk::RGBA lookUp(const Gtk::Widget& widget, const ui::Color& color, const NamedColor* named)
{
    Gdk::RGBA result(static_cast<float>(color.red), static_cast<float>(color.green),
        static_cast<float>(color.blue), 1);
    double opacity = color.opacity;
    if (named) {
        const_cast<Gtk::Widget&>(widget).get_style_context()->lookup_color(named->name, result);
        opacity *= named->opacity;
    }
    result.set_alpha(static_cast<float>(result.get_alpha() * opacity));
    return result;
}

} // namespace

Gdk::RGBA themeColor(const Gtk::Widget& widget, const ui::Color& color)
{
    return lookUp(widget, color, nameOf(color.role));
}

Gdk::RGBA themeInk(const Gtk::Widget& widget, const ui::Color& color)
{
    static constexpr NamedColor accentInk{ui::Color::Role::accent, "velmaro_accent_ink", 1};
    const bool isAccent = color.role == ui::Color::Role::accent;
    return lookUp(widget, color, isAccent ? &accentInk : nameOf(color.role));
}

} // namespace gtk
