#include "http/DemoServer.h"
#include "Options.h"
#include "service/DemoService.h"

#include <csignal>
#include <cstdio>
#include <exception>
#include <glib-unix.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

gboolean endLoop(gpointer loop)
{
    g_main_loop_quit(static_cast<GMainLoop*>(loop));
    return G_SOURCE_CONTINUE;
}

void endWithParent(pid_t parent)
{
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != parent) // It ended before the line above.
        std::raise(SIGTERM);
}

void serve(const demo::Options& options)
{
    demo::RequestLog log;
    demo::DemoService service(log, options.isHostile);
    demo::DemoServer server(
        log, [&](const demo::Request& request) { return service.answer(request); });
    const auto certificate = demo::Certificate::inFolder(options.folder);
    server.listen(certificate, options.port);

    std::printf("Velmaro demo service: https://velmaro.localhost:%d\nCertificate: %s\n",
        server.port(), std::filesystem::absolute(certificate.certificateFile).c_str());
    std::fflush(stdout);

    GMainLoop* loop = g_main_loop_new(nullptr, FALSE);
    g_unix_signal_add(SIGTERM, endLoop, loop);
    g_unix_signal_add(SIGINT, endLoop, loop);
    g_main_loop_run(loop);
    g_main_loop_unref(loop);
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const pid_t parent = getppid();
    try {
        const auto options = demo::Options::fromArguments(argumentCount, arguments);
        if (options.showsHelp) {
            std::fputs(demo::helpText, stdout);
            return 0;
        }
        if (options.endsWithParent)
            endWithParent(parent);
        serve(options);
        return 0;
    } catch (const std::invalid_argument& error) {
        std::fprintf(stderr, "velmaro-demo-service: %s\n", error.what());
        return 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "velmaro-demo-service: %s\n", error.what());
        return 1;
    }
}
