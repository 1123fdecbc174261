#include "platform/gtk/webkit/Sandbox.h"

#include "platform/gtk/foundation/Sandboxing.h"

#include <glib.h>

namespace gtk {

namespace {

// Where the engine looks for them.
constexpr auto bubblewrap = "/usr/bin/bwrap";
constexpr auto busProxy = "/usr/bin/xdg-dbus-proxy";

bool isProgram(const char* path)
{
    return g_file_test(path, G_FILE_TEST_IS_EXECUTABLE);
}

bool canMakeSandbox()
{
    const char* command[] = {bubblewrap, "--ro-bind", "/", "/", "--unshare-all", "true", nullptr};
    int status = 0;
    const auto flags =
        static_cast<GSpawnFlags>(G_SPAWN_STDOUT_TO_DEV_NULL | G_SPAWN_STDERR_TO_DEV_NULL);
    return g_spawn_sync(nullptr, const_cast<char**>(command), nullptr, flags, nullptr, nullptr,
               nullptr, nullptr, &status, nullptr)
        && g_spawn_check_wait_status(status, nullptr);
}

} // namespace

std::optional<std::string> sandboxProblem()
{
    if (isSandboxed() || g_getenv("WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS"))
        return std::nullopt;
    if (!isProgram(bubblewrap))
        return "/usr/bin/bwrap is missing";
    if (!isProgram(busProxy))
        return "/usr/bin/xdg-dbus-proxy is missing";
    if (!canMakeSandbox())
        return "/usr/bin/bwrap is not allowed to make one";
    return std::nullopt;
}

} // namespace gtk
