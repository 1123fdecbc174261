#include "platform/gtk/desktop/GtkWorkspace.h"

#include <gio/gio.h>
#include <string>

namespace gtk {

namespace {

constexpr auto ownScheme = "velmaro";
constexpr int fileManagerPatience = 5000; // milliseconds

// Where there is no file manager that selects, the folder will do.
struct FolderToOpen {
    std::shared_ptr<AddressLauncher> launcher;
    std::string address;
};

void didReveal(GObject* bus, GAsyncResult* result, gpointer data)
{
    const std::unique_ptr<FolderToOpen> folder(static_cast<FolderToOpen*>(data));
    g_autoptr(GError) error = nullptr;
    g_autoptr(GVariant) reply =
        g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, &error);
    if (!reply)
        folder->launcher->launch(folder->address);
}

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

void GtkWorkspace::open(const platform::URL& url)
{
    if (isOwn(url))
        openHere(url.absoluteString());
    else
        launcher_->launch(url.absoluteString());
}

void GtkWorkspace::activateFileViewerSelecting(const std::vector<platform::URL>& files)
{
    GVariantBuilder addresses;
    g_variant_builder_init(&addresses, G_VARIANT_TYPE("as"));
    std::string folder;
    for (const auto& file : files) {
        if (!file.isFileURL())
            continue;
        g_variant_builder_add(&addresses, "s", file.absoluteString().c_str());
        folder = folderOf(file);
    }
    auto* arguments = g_variant_ref_sink(g_variant_new("(ass)", &addresses, ""));
    [[maybe_unused]] g_autoptr(GVariant) owned = arguments;
    if (folder.empty())
        return;

    g_autoptr(GDBusConnection) bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
    if (!bus)
        return launcher_->launch(folder);
    g_dbus_connection_call(bus, "org.freedesktop.FileManager1", "/org/freedesktop/FileManager1",
        "org.freedesktop.FileManager1", "ShowItems", arguments, nullptr, G_DBUS_CALL_FLAGS_NONE,
        fileManagerPatience, nullptr, didReveal, new FolderToOpen{launcher_, folder});
}

} // namespace gtk
