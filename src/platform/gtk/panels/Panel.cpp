#include "platform/gtk/panels/Panel.h"

#include <gtkmm/application.h>
#include <gtkmm/eventcontrollerkey.h>

namespace gtk {

Gtk::Window* activeWindow()
{
    const auto application =
        std::dynamic_pointer_cast<Gtk::Application>(Gio::Application::get_default());
    return application ? application->get_active_window() : nullptr;
}

Panel::Panel(Options options, const ui::View& content)
    : options_(std::move(options))
    , content_(content.frame({.maxWidth = ui::infinity,
          .maxHeight = ui::infinity,
          .alignment = ui::Alignment::topLeading}))
{
    window_.set_title(options_.title);
    window_.set_modal(options_.isModal);
    window_.set_resizable(false);
    window_.set_child(content_.widget());
    window_.signal_close_request().connect(
        [this] {
            options_.onClose ? options_.onClose() : hide();
            return true;
        },
        false);
    const auto keys = Gtk::EventControllerKey::create();
    keys->signal_key_pressed().connect(
        [this](guint key, guint, Gdk::ModifierType) {
            if (key == GDK_KEY_Escape)
                window_.close();
            return key == GDK_KEY_Escape;
        },
        false);
    window_.add_controller(keys);
    if (auto* parent = activeWindow())
        window_.set_transient_for(*parent);
    window_.present();
}

Panel::~Panel()
{
    hide();
    window_.unset_focus(); // which the toolkit would keep when what has it goes
    window_.unset_child();
}

} // namespace gtk
