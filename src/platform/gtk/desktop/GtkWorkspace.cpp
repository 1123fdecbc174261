#include "platform/gtk/desktop/GtkWorkspace.h"

#include <gio/gio.h>

namespace gtk {

namespace {

constexpr auto ownScheme = "velmaro";
constexpr double fileManagerPatience = 5; // seconds
constexpr auto fileManagerName = "org.freedesktop.FileManager1";
constexpr auto fileManagerPath = "/org/freedesktop/FileManager1";

std::string folderOf(const platform::URL& file)
{
    g_autofree char* folder = g_path_get_dirname(file.path().c_str());
    return platform::URL::fileURL(folder).absoluteString();
}

// The program's own addresses need no detour through the desktop, which may not know them.
void openHere(const std::string& address)
{
    auto* program = g_application_get_default();
    g_autoptr(GFile) file = g_file_new_for_uri(address.c_str());
    GFile* files[] = {file};
    g_application_open(program, files, 1, "");
}

bool isOwn(const platform::URL& url)
{
    const auto& scheme = url.scheme();
    return scheme && g_ascii_strcasecmp(scheme->c_str(), ownScheme) == 0
        && g_application_get_default();
}

} // namespace

GtkWorkspace::GtkWorkspace()
    : fileManager_(Gio::DBus::BusType::SESSION, fileManagerName)
{
}

void GtkWorkspace::open(const platform::URL& url)
{
    if (isOwn(url))
        openHere(url.absoluteString());
    else
        launcher_.launch(url.absoluteString());
}

void GtkWorkspace::activateFileViewerSelecting(const std::vector<platform::URL>& files)
{
    std::vector<Glib::ustring> addresses;
    std::string folder;
    for (const auto& file : files) {
        if (!file.isFileURL())
            continue;
        addresses.push_back(file.absoluteString());
        folder = folderOf(file);
    }
    if (addresses.empty())
        return;

    constexpr auto startupToken = "";
    fileManager_.call({
        .method = {fileManagerPath, fileManagerName, "ShowItems"},
        .arguments = busValues(addresses, startupToken),
        .patience = fileManagerPatience,
        // Where no file manager can select, the folder will do.
        .onFailure = [this, folder](const auto&) { launcher_.launch(folder); },
    });
}

} // namespace gtk
