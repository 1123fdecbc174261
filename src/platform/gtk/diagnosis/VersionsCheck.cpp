#include "platform/gtk/diagnosis/Checks.h"
#include "platform/gtk/foundation/Sandboxing.h"

#include <gtk/gtk.h>
#include <sys/utsname.h>
#include <webkit/webkit.h>

namespace gtk {

namespace {

std::string version(unsigned major, unsigned minor, unsigned micro)
{
    return std::to_string(major) + '.' + std::to_string(minor) + '.' + std::to_string(micro);
}

std::string system()
{
    g_autofree char* name = g_get_os_info(G_OS_INFO_KEY_PRETTY_NAME);
    utsname kernel = {};
    uname(&kernel);
    std::string text =
        std::string(name ? name : kernel.sysname) + ", " + kernel.release + ", " + kernel.machine;
    if (const char* desktop = g_getenv("XDG_CURRENT_DESKTOP"))
        text += std::string(", ") + desktop;
    if (isSandboxed())
        text += ", Flatpak";
    return text;
}

} // namespace

std::vector<Finding> checkVersions()
{
    const auto toolkit =
        version(gtk_get_major_version(), gtk_get_minor_version(), gtk_get_micro_version());
    const auto engine =
        version(webkit_get_major_version(), webkit_get_minor_version(), webkit_get_micro_version());
    return {
        {"Program", "Velmaro Online " VELMARO_VERSION " (" VELMARO_BUILD_NUMBER ")"},
        {"System", system()},
        {"Toolkit",
            "GTK " + toolkit + ", GLib "
                + version(glib_major_version, glib_minor_version, glib_micro_version)},
        {"Web engine", "WebKitGTK " + engine},
    };
}

} // namespace gtk
