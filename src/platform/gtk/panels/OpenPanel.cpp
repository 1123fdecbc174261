#include "platform/gtk/panels/OpenPanel.h"

#include "platform/gtk/panels/Panel.h"

#include <glibmm/main.h>
#include <gtkmm/dialog.h>
#include <gtkmm/filechoosernative.h>

namespace gtk {

namespace {

// Files that have no path here, such as those on a camera, are left out: nobody could read them.
std::vector<platform::URL> filesOf(const Gtk::FileChooserNative& chooser)
{
    std::vector<platform::URL> files;
    auto* native = GTK_FILE_CHOOSER(const_cast<GtkFileChooserNative*>(chooser.gobj()));
    g_autoptr(GListModel) chosen = gtk_file_chooser_get_files(native);
    for (guint index = 0; index < g_list_model_get_n_items(chosen); ++index) {
        g_autoptr(GFile) file = G_FILE(g_list_model_get_item(chosen, index));
        if (const char* path = g_file_peek_path(file))
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

    if (auto* window = activeWindow())
        chooser->set_transient_for(*window); // stays above it, and leaves it usable

    // The panel keeps itself until it is answered, and the toolkit still uses it in the answer.
    const auto self = std::make_shared<Glib::RefPtr<Gtk::FileChooserNative>>(chooser);
    chooser->signal_response().connect([self, completion = std::move(completion)](int response) {
        const auto answered = std::exchange(*self, nullptr);
        Glib::signal_idle().connect_once([answered] {});
        completion(response == Gtk::ResponseType::ACCEPT ? std::optional(filesOf(*answered))
                                                         : std::nullopt);
    });
    chooser->show();
}

} // namespace gtk
