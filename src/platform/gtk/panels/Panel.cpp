#include "platform/gtk/panels/Panel.h"

#include <gtkmm/application.h>
#include <gtkmm/eventcontrollerkey.h>

namespace gtk {

void presentPanel(Gtk::Window& window, const std::string& title)
{
    window.set_title(title);
    window.set_modal(true);
    window.set_resizable(false);
    window.set_hide_on_close(true);
    const auto keys = Gtk::EventControllerKey::create();
    keys->signal_key_pressed().connect(
        [&window](guint key, guint, Gdk::ModifierType) {
            if (key == GDK_KEY_Escape)
                window.close();
            return key == GDK_KEY_Escape;
        },
        false);
    window.add_controller(keys);
    const auto application =
        std::dynamic_pointer_cast<Gtk::Application>(Gio::Application::get_default());
    if (auto* parent = application ? application->get_active_window() : nullptr)
        window.set_transient_for(*parent);
    window.present();
}

} // namespace gtk
