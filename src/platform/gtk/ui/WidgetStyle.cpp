#include "platform/gtk/ui/WidgetStyle.h"

#include <cmath>
#include <gtkmm/cssprovider.h>
#include <gtkmm/stylecontext.h>

namespace gtk {

namespace {

Pango::Weight pangoWeight(ui::Font::Weight weight)
{
    switch (weight) {
    case ui::Font::Weight::medium:
        return Pango::Weight::MEDIUM;
    case ui::Font::Weight::semibold:
        return Pango::Weight::SEMIBOLD;
    case ui::Font::Weight::bold:
        return Pango::Weight::BOLD;
    default:
        return Pango::Weight::NORMAL;
    }
}

} // namespace

void installTheme(const Glib::RefPtr<Gdk::Display>& display)
{
    static constexpr auto installed = "velmaro-theme";
    if (display->get_data(Glib::Quark(installed)))
        return;
    display->set_data(Glib::Quark(installed), display.get());

    const auto provider = Gtk::CssProvider::create();
    provider->load_from_resource("/example/velmaro/Online/style.css");
    Gtk::StyleContext::add_provider_for_display(
        display, provider, GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
}

Pango::AttrList fontAttributes(const ui::Font& font)
{
    Pango::AttrList attributes;
    auto weight = Pango::Attribute::create_attr_weight(pangoWeight(font.weight));
    attributes.insert(weight);
    if (font.size != ui::Font::desktopSize) {
        auto size = Pango::Attribute::create_attr_size_absolute(
            static_cast<int>(std::lround(font.size * PANGO_SCALE)));
        attributes.insert(size);
    }
    return attributes;
}

void setAccessibleName(Gtk::Widget& widget, const std::string& name)
{
    gtk_accessible_update_property(
        GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_PROPERTY_LABEL, name.c_str(), -1);
    gtk_accessible_reset_relation(
        GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_RELATION_LABELLED_BY);
}

void setAccessibleAsField(Gtk::Text& text)
{
    g_object_set(text.gobj(), "accessible-role", GTK_ACCESSIBLE_ROLE_TEXT_BOX, nullptr);
}

} // namespace gtk
