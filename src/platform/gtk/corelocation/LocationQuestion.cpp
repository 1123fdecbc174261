#include "platform/gtk/corelocation/LocationQuestion.h"

#include "platform/gtk/corelocation/LocationPermission.h"
#include "platform/gtk/ui/AccessibleName.h"

#include <glibmm/main.h>
#include <gtkmm/application.h>
#include <gtkmm/messagedialog.h>

namespace gtk {

namespace {

Gtk::Window* activeWindow()
{
    const auto application =
        std::dynamic_pointer_cast<Gtk::Application>(Gio::Application::get_default());
    return application ? application->get_active_window() : nullptr;
}

} // namespace

void askForLocation(std::function<void(bool isAllowed)> answer)
{
    auto* alert = new Gtk::MessageDialog(LocationPermission::question, false,
        Gtk::MessageType::QUESTION, Gtk::ButtonsType::NONE, true);
    alert->set_secondary_text(LocationPermission::explanation);
    const auto addButton = [&](const char* title, Gtk::ResponseType response) {
        setAccessibleName(*alert->add_button(title, response), title);
    };
    addButton(LocationPermission::deny, Gtk::ResponseType::REJECT);
    addButton(LocationPermission::allow, Gtk::ResponseType::ACCEPT);
    alert->set_default_response(Gtk::ResponseType::ACCEPT);
    if (auto* window = activeWindow())
        alert->set_transient_for(*window);

    alert->signal_response().connect([alert, answer = std::move(answer)](int response) {
        alert->hide();
        // The toolkit still uses the alert when it was closed with Escape.
        Glib::signal_idle().connect_once([alert] { delete alert; });
        answer(response == Gtk::ResponseType::ACCEPT);
    });
    alert->show();
}

} // namespace gtk
