#include "platform/gtk/panels/SharePanel.h"

#include "platform/gtk/desktop/OutgoingMail.h"
#include "platform/gtk/panels/ShareView.h"
#include "platform/Platform.h"
#include "platform/ui/Views.h"

#include <gdkmm/applaunchcontext.h>
#include <gdkmm/clipboard.h>
#include <gdkmm/display.h>
#include <giomm/contenttype.h>

namespace gtk {

namespace {

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

// Two formats: GNOME's copied-files marks a copy for file managers, the file list serves the rest.
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
    if (!files_.empty())
        panel_.emplace(Panel::Options{.title = "Share"}, content());
}

ui::View SharePanel::content()
{
    std::vector<std::string> names;
    for (const auto& file : files_)
        names.push_back(file->get_basename());
    std::vector<ShareView::Program> programs;
    for (const auto& program : programsFor(*files_.front())) {
        const auto icon = program->get_icon();
        programs.push_back({program->get_display_name(), icon ? icon->to_string() : "",
            [this, program] { open(program); }});
    }
    return ShareView{
        .files = std::move(names),
        .programs = std::move(programs),
        .sendByMail = [this] { sendByMail(files_); },
        .copy = [this] { copy(); },
        .dismiss = [this] { panel_->hide(); },
    };
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
    gdk_clipboard_set_content(Gdk::Display::get_default()->get_clipboard()->gobj(), content);
    g_object_unref(content);
}

} // namespace gtk
