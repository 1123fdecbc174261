#include "platform/gtk/panels/SharePanel.h"

#include "platform/gtk/desktop/OutgoingMail.h"
#include "platform/gtk/panels/Panel.h"
#include "platform/gtk/ui/WidgetStyle.h"
#include "platform/Platform.h"

#include <gdkmm/applaunchcontext.h>
#include <gdkmm/clipboard.h>
#include <gdkmm/display.h>
#include <giomm/contenttype.h>
#include <giomm/themedicon.h>
#include <gtkmm/button.h>
#include <gtkmm/image.h>
#include <gtkmm/label.h>
#include <gtkmm/separator.h>

namespace gtk {

namespace {

constexpr int width = 340;
constexpr int margin = 12;
constexpr std::size_t mostPrograms = 8;

std::vector<Glib::RefPtr<Gio::AppInfo>> programsFor(const Gio::File& file)
{
    bool isUncertain = false;
    const auto type = Gio::content_type_guess(file.get_basename(), std::string(), isUncertain);
    auto programs = Gio::AppInfo::get_all_for_type(type);
    std::erase_if(programs, [](const auto& program) { return !program->should_show(); });
    if (programs.size() > mostPrograms)
        programs.resize(mostPrograms);
    return programs;
}

// For file managers the one, which also tells that the files are not to be moved; for all other
// programs the list.
GdkContentProvider* clipboardContent(const std::vector<Glib::RefPtr<Gio::File>>& files)
{
    std::string command = "copy";
    GSList* list = nullptr;
    for (const auto& file : files) {
        command += '\n' + file->get_uri();
        list = g_slist_append(list, file->gobj());
    }
    g_autoptr(GBytes) bytes = g_bytes_new(command.data(), command.size());
    auto* fileList = gdk_file_list_new_from_list(list);
    g_slist_free(list);
    GdkContentProvider* kinds[] = {
        gdk_content_provider_new_for_bytes("x-special/gnome-copied-files", bytes),
        gdk_content_provider_new_typed(GDK_TYPE_FILE_LIST, fileList),
    };
    g_boxed_free(GDK_TYPE_FILE_LIST, fileList);
    return gdk_content_provider_new_union(kinds, std::size(kinds));
}

} // namespace

SharePanel::SharePanel(const std::vector<platform::URL>& files)
{
    for (const auto& file : files) {
        if (file.isFileURL())
            files_.push_back(Gio::File::create_for_path(file.path()));
    }
    if (files_.empty())
        return;
    fill();

    window_.set_default_size(width, -1);
    presentPanel(window_, "Share");
}

void SharePanel::fill()
{
    entries_.set_margin(margin);
    addHeading(files_.size() == 1 ? files_.front()->get_basename()
                                  : std::to_string(files_.size()) + " files");

    for (const auto& program : programsFor(*files_.front()))
        addEntry(program->get_icon(), "Open with " + program->get_display_name(),
            [this, program] { open(program); });
    entries_.append(*Gtk::make_managed<Gtk::Separator>());
    addEntry(Gio::ThemedIcon::create("mail-send-symbolic"), "Send by E-Mail",
        [this] { sendByMail(files_); });
    addEntry(Gio::ThemedIcon::create("edit-copy-symbolic"), "Copy File", [this] { copy(); });
    window_.set_child(entries_);
}

void SharePanel::addHeading(const std::string& text)
{
    auto& label = *Gtk::make_managed<Gtk::Label>(text);
    label.add_css_class("heading");
    label.set_ellipsize(Pango::EllipsizeMode::MIDDLE);
    label.set_max_width_chars(36);
    label.set_margin_bottom(margin);
    entries_.append(label);
}

void SharePanel::addEntry(
    const Glib::RefPtr<const Gio::Icon>& icon, const std::string& text, std::function<void()> act)
{
    auto& content = *Gtk::make_managed<Gtk::Box>();
    content.set_spacing(margin);
    auto& image = *Gtk::make_managed<Gtk::Image>();
    if (icon)
        image.set(icon);
    auto& label = *Gtk::make_managed<Gtk::Label>(text, Gtk::Align::START);
    label.set_ellipsize(Pango::EllipsizeMode::END);
    content.append(image);
    content.append(label);

    auto& button = *Gtk::make_managed<Gtk::Button>();
    button.set_child(content);
    button.set_has_frame(false);
    setAccessibleName(button, text);
    button.signal_clicked().connect([this, act = std::move(act)] {
        window_.close();
        act();
    });
    entries_.append(button);
}

void SharePanel::open(const Glib::RefPtr<Gio::AppInfo>& program)
{
    try {
        program->launch(files_, Gdk::Display::get_default()->get_app_launch_context());
    } catch (const Glib::Error& error) {
        platform::NSLog("The program could not be started: " + std::string(error.what()));
    }
}

void SharePanel::copy()
{
    auto* content = clipboardContent(files_);
    gdk_clipboard_set_content(window_.get_display()->get_clipboard()->gobj(), content);
    g_object_unref(content);
}

} // namespace gtk
