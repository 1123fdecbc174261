#include "platform/gtk/appkit/OpenPanel.h"

#include <glibmm/main.h>
#include <gtkmm/filechoosernative.h>

namespace gtk {

namespace {

// Files that have no path here, such as those on a camera, are left out: nobody could read them.
std::vector<platform::URL> filesOf(const Gtk::FileChooserNative& chooser)
{
    std::vector<platform::URL> files;
    const Glib::RefPtr<Gio::ListModel> chosen =
        const_cast<Gtk::FileChooserNative&>(chooser).get_files();
    for (guint index = 0; index < chosen->get_n_items(); ++index) {
        const auto file = std::dynamic_pointer_cast<Gio::File>(chosen->get_object(index));
        if (const auto path = file ? file->get_path() : ""; !path.empty())
            files.push_back(platform::URL::fileURL(path));
    }
    return files;
}

} // namespace

void showOpenPanel(const platform::NSOpenPanel& panel, platform::NSOpenPanel::Completion completion)
{
    using Action = Gtk::FileChooser::Action;

    const auto chooser = Gtk::FileChooserNative::create(
        "Open", panel.canChooseFiles ? Action::OPEN : Action::SELECT_FOLDER, "_Open", "_Cancel");
    chooser->set_select_multiple(panel.allowsMultipleSelection);

    // The panel keeps itself until it is answered; the toolkit still uses it in the answer.
    chooser->signal_response().connect([chooser, completion = std::move(completion)](int response) {
        auto keptUntilIdle = chooser;
        completion(response == Gtk::ResponseType::ACCEPT ? std::optional(filesOf(*chooser))
                                                         : std::nullopt);
    });
    chooser->show();
}

} // namespace gtk
