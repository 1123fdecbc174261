#include "platform/gtk/usernotifications/NotificationAgent.h"

#include "platform/gtk/foundation/ObjectPointer.h"

#include <filesystem>
#include <gio/gio.h>

namespace gtk {

namespace {

constexpr auto programName = "velmaro-notification-agent";

// Beside the application where it has been built, in a folder of its own where it is installed.
std::filesystem::path agentProgram()
{
    std::error_code ignored;
    const auto application = std::filesystem::read_symlink("/proc/self/exe", ignored);
    const auto built = application.parent_path() / programName;
    return std::filesystem::exists(built, ignored)
        ? built
        : std::filesystem::path(VELMARO_HELPERS) / programName;
}

} // namespace

std::optional<std::string> startNotificationAgent(
    const std::string& application, const Glib::VariantBase& notifications)
{
    const auto flags = GSubprocessFlags(G_SUBPROCESS_FLAGS_STDIN_PIPE
        | G_SUBPROCESS_FLAGS_STDOUT_SILENCE | G_SUBPROCESS_FLAGS_STDERR_SILENCE);
    const ObjectPointer<GSubprocessLauncher> launcher(g_subprocess_launcher_new(flags));
    g_subprocess_launcher_set_cwd(launcher.get(), "/");

    const auto program = agentProgram();
    g_autoptr(GError) error = nullptr;
    const ObjectPointer<GSubprocess> agent(g_subprocess_launcher_spawn(
        launcher.get(), &error, program.c_str(), application.c_str(), nullptr));
    if (!agent)
        return error->message;
    auto* input = g_subprocess_get_stdin_pipe(agent.get());
    const bool isTold = g_output_stream_write_all(
        input, notifications.get_data(), notifications.get_size(), nullptr, nullptr, &error);
    if (!isTold || !g_output_stream_close(input, nullptr, &error))
        return error->message;
    return std::nullopt;
}

} // namespace gtk
