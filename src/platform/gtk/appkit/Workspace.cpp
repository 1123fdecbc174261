#include "platform/gtk/appkit/Workspace.h"

#include "platform/Platform.h"

#include <gdk/gdk.h>
#include <gio/gio.h>
#include <string>

namespace gtk {

namespace {

constexpr auto ownScheme = "velmaro";
constexpr int fileManagerPatience = 5000; // milliseconds

// Carries the token with which the other program may come forward.
GAppLaunchContext* makeLaunchContext()
{
    auto* display = gdk_display_get_default();
    return display ? G_APP_LAUNCH_CONTEXT(gdk_display_get_app_launch_context(display)) : nullptr;
}

void didOpen(GObject*, GAsyncResult* result, gpointer)
{
    g_autoptr(GError) error = nullptr;
    if (!g_app_info_launch_default_for_uri_finish(result, &error))
        platform::NSLog(std::string("No program opens this address: ") + error->message);
}

void openWithDefaultProgram(const std::string& address)
{
    g_autoptr(GAppLaunchContext) context = makeLaunchContext();
    g_app_info_launch_default_for_uri_async(address.c_str(), context, nullptr, didOpen, nullptr);
}

// Where there is no file manager that selects, the folder will do.
void didReveal(GObject* bus, GAsyncResult* result, gpointer data)
{
    g_autofree char* folder = static_cast<char*>(data);
    g_autoptr(GError) error = nullptr;
    g_autoptr(GVariant) reply =
        g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, &error);
    if (!reply)
        openWithDefaultProgram(folder);
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
    const auto scheme = url.scheme();
    return scheme && g_ascii_strcasecmp(scheme->c_str(), ownScheme) == 0
        && g_application_get_default();
}

} // namespace

void Workspace::open(const platform::URL& url)
{
    if (isOwn(url))
        return openHere(url.absoluteString());
    openWithDefaultProgram(url.absoluteString());
}

void Workspace::activateFileViewerSelecting(const std::vector<platform::URL>& files)
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
    g_autoptr(GVariant) owned = arguments;
    if (folder.empty())
        return;

    g_autoptr(GDBusConnection) bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
    if (!bus)
        return openWithDefaultProgram(folder);
    g_dbus_connection_call(bus, "org.freedesktop.FileManager1", "/org/freedesktop/FileManager1",
        "org.freedesktop.FileManager1", "ShowItems", arguments, nullptr, G_DBUS_CALL_FLAGS_NONE,
        fileManagerPatience, nullptr, didReveal, g_strdup(folder.c_str()));
}

} // namespace gtk
