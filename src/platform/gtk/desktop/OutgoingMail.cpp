#include "platform/gtk/desktop/OutgoingMail.h"

#include "platform/Platform.h"

#include <fcntl.h>
#include <gdk/gdk.h>
#include <gio/gunixfdlist.h>
#include <memory>
#include <string>
#include <unistd.h>

namespace gtk {

namespace {

using Files = std::vector<Glib::RefPtr<Gio::File>>;

constexpr int portalPatience = 5000; // milliseconds

std::string escaped(const std::string& text)
{
    g_autofree char* result = g_uri_escape_string(text.c_str(), nullptr, FALSE);
    return result;
}

// The usual script knows how each mail program wants its attachments.
bool sendWithScript(const Files& files)
{
    g_autofree char* script = g_find_program_in_path("xdg-email");
    if (!script)
        return false;
    std::vector<std::string> arguments = {script, "--subject", files.front()->get_basename()};
    for (const auto& file : files)
        arguments.insert(arguments.end(), {"--attach", file->get_path()});
    std::vector<char*> pointers;
    for (auto& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    return g_spawn_async(
        nullptr, pointers.data(), nullptr, G_SPAWN_DEFAULT, nullptr, nullptr, nullptr, nullptr);
}

void didLaunch(GObject*, GAsyncResult* result, gpointer)
{
    g_autoptr(GError) error = nullptr;
    if (!g_app_info_launch_default_for_uri_finish(result, &error))
        platform::NSLog(std::string("No mail program takes the file: ") + error->message);
}

void sendWithAddress(const Files& files)
{
    auto address = "mailto:?subject=" + escaped(files.front()->get_basename());
    for (const auto& file : files)
        address += "&attach=" + escaped(file->get_path());
    g_autoptr(GAppLaunchContext) context =
        G_APP_LAUNCH_CONTEXT(gdk_display_get_app_launch_context(gdk_display_get_default()));
    g_app_info_launch_default_for_uri_async(address.c_str(), context, nullptr, didLaunch, nullptr);
}

void didCompose(GObject* bus, GAsyncResult* result, gpointer data)
{
    const std::unique_ptr<Files> files(static_cast<Files*>(data));
    g_autoptr(GVariant) reply = g_dbus_connection_call_with_unix_fd_list_finish(
        G_DBUS_CONNECTION(bus), nullptr, result, nullptr);
    if (!reply && !sendWithScript(*files))
        sendWithAddress(*files);
}

// The arguments of the portal's method, and the open files that go with them.
GVariant* composeArguments(const Files& files, GUnixFDList* descriptors)
{
    GVariantBuilder handles;
    g_variant_builder_init(&handles, G_VARIANT_TYPE("ah"));
    for (const auto& file : files) {
        const int descriptor = ::open(file->get_path().c_str(), O_RDONLY | O_CLOEXEC);
        if (descriptor < 0)
            continue;
        g_variant_builder_add(
            &handles, "h", g_unix_fd_list_append(descriptors, descriptor, nullptr));
        ::close(descriptor);
    }
    GVariantBuilder options;
    g_variant_builder_init(&options, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(
        &options, "{sv}", "subject", g_variant_new_string(files.front()->get_basename().c_str()));
    g_variant_builder_add(&options, "{sv}", "attachment_fds", g_variant_builder_end(&handles));
    return g_variant_new("(sa{sv})", "", &options);
}

void didConnect(GObject*, GAsyncResult* result, gpointer data)
{
    std::unique_ptr<Files> files(static_cast<Files*>(data));
    g_autoptr(GDBusConnection) bus = g_bus_get_finish(result, nullptr);
    if (!bus) {
        if (!sendWithScript(*files))
            sendWithAddress(*files);
        return;
    }
    g_autoptr(GUnixFDList) descriptors = g_unix_fd_list_new();
    auto* arguments = composeArguments(*files, descriptors);
    g_dbus_connection_call_with_unix_fd_list(bus, "org.freedesktop.portal.Desktop",
        "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Email", "ComposeEmail",
        arguments, nullptr, G_DBUS_CALL_FLAGS_NONE, portalPatience, descriptors, nullptr,
        didCompose, files.release());
}

} // namespace

void sendByMail(const Files& files)
{
    g_bus_get(G_BUS_TYPE_SESSION, nullptr, didConnect, new Files(files));
}

} // namespace gtk
