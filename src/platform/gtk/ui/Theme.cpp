#include "platform/gtk/ui/Theme.h"

#include <gtkmm/cssprovider.h>
#include <gtkmm/stylecontext.h>

namespace gtk {

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

} // namespace gtk
