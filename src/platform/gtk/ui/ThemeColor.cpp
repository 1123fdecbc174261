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

} // namespace

Gdk::RGBA themeColor(const Gtk::Widget& widget, const ui::Color& color)
{
    Gdk::RGBA result(static_cast<float>(color.red), static_cast<float>(color.green),
        static_cast<float>(color.blue), 1);
    double opacity = color.opacity;
    if (const auto* named = nameOf(color.role)) {
        const_cast<Gtk::Widget&>(widget).get_style_context()->lookup_color(named->name, result);
        opacity *= named->opacity;
    }
    result.set_alpha(static_cast<float>(result.get_alpha() * opacity));
    return result;
}

} // namespace gtk
