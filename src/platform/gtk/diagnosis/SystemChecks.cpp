// The checks of what is installed: versions, the sandbox, and the folder for downloads.

#include "platform/gtk/diagnosis/Report.h"
#include "platform/gtk/foundation/Sandboxing.h"
#include "platform/gtk/webkit/Sandbox.h"

#include <cerrno>
#include <fcntl.h>
#include <gtk/gtk.h>
#include <sys/utsname.h>
#include <unistd.h>
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

constexpr std::uintmax_t fewBytes = 100'000'000;

// Tries to make a file, which is removed at once. Returns why it cannot; empty when it can.
std::string whyNotWritable(const std::filesystem::path& folder)
{
    auto name = (folder / ".velmaro-XXXXXX").string();
    const int file = mkostemp(name.data(), O_CLOEXEC);
    if (file < 0)
        return g_strerror(errno);
    unlink(name.c_str());
    close(file);
    return "";
}

// The folder itself, or the nearest folder above it that exists.
std::filesystem::path existingPart(std::filesystem::path folder)
{
    std::error_code ignored;
    while (folder.has_relative_path() && !std::filesystem::exists(folder, ignored))
        folder = folder.parent_path();
    return folder;
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

std::vector<Finding> checkSandbox()
{
    if (const auto problem = sandboxProblem()) {
        return {{
            .title = "Sandbox",
            .finding = *problem,
            .verdict = Verdict::problem,
            .advice = "Install bubblewrap and xdg-dbus-proxy, and let the system allow user "
                      "namespaces.",
        }};
    }
    if (g_getenv("WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS")) {
        return {{
            .title = "Sandbox",
            .finding = "switched off in the environment",
            .verdict = Verdict::warning,
            .advice = "Unset WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS.",
        }};
    }
    return {{"Sandbox", "bubblewrap, xdg-dbus-proxy and user namespaces work"}};
}

std::vector<Finding> checkDownloads(const std::filesystem::path& folder)
{
    constexpr auto title = "Downloads";
    const auto existing = existingPart(folder);
    std::error_code error;
    if (!std::filesystem::is_directory(existing, error)) {
        return {{title, existing.string() + " is no folder", Verdict::problem,
            "Choose another folder for downloads in ~/.config/user-dirs.dirs."}};
    }
    if (const auto reason = whyNotWritable(existing); !reason.empty()) {
        return {{title, existing.string() + " cannot be written to: " + reason, Verdict::problem,
            "Files cannot be saved. Change the folder's permissions, or choose another one in "
            "~/.config/user-dirs.dirs."}};
    }

    auto finding = folder.string();
    if (existing != folder)
        finding += ", which is made with the first download";
    const auto space = std::filesystem::space(existing, error);
    if (error)
        return {{title, finding}};
    g_autofree char* size = g_format_size(space.available);
    finding += std::string(", ") + size + " free";
    if (space.available < fewBytes)
        return {{title, finding, Verdict::warning, "Make room on this disk."}};
    return {{title, finding}};
}

} // namespace gtk
