#include "platform/gtk/webkit/PageBackground.h"

#include "platform/gtk/ui/ThemeColor.h"

namespace gtk {

PageBackground::PageBackground(WebKitWebView* view, const Gtk::Widget& area)
    : view_(view)
    , area_(area)
{
    for (const auto* change :
        {"notify::gtk-theme-name", "notify::gtk-application-prefer-dark-theme"})
        signals_.connect(gtk_settings_get_default(), change,
            G_CALLBACK(+[](GObject*, GParamSpec*, PageBackground* self) { self->paint(); }), this);
}

void PageBackground::setWhite(bool isWhite)
{
    isWhite_ = isWhite;
    paint();
}

// Nothing at all would look like the window's colour too. But where the engine draws in software,
// it draws what changes over what was there before, and both could be seen.
void PageBackground::paint()
{
    const auto color =
        isWhite_ ? Gdk::RGBA("white") : themeColor(area_, ui::Color::windowBackground);
    webkit_web_view_set_background_color(view_, color.gobj());
}

} // namespace gtk
