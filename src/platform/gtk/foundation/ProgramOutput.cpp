#include "platform/gtk/foundation/ProgramOutput.h"

#include "platform/gtk/foundation/ObjectPointer.h"

#include <gio/gio.h>
#include <glibmm/main.h>

namespace gtk {

namespace {

struct Run {
    ObjectPointer<GCancellable> cancellable;
    std::function<void(std::optional<std::string>)> handler;
};

void finish(const Run& run, std::optional<std::string> output)
{
    if (!g_cancellable_is_cancelled(run.cancellable.get()))
        run.handler(std::move(output));
}

void ended(GObject* object, GAsyncResult* result, gpointer data)
{
    const std::unique_ptr<Run> run(static_cast<Run*>(data));
    auto* process = G_SUBPROCESS(object);
    g_autofree char* output = nullptr;
    const bool isRead =
        g_subprocess_communicate_utf8_finish(process, result, &output, nullptr, nullptr);
    if (isRead && g_subprocess_get_successful(process))
        finish(*run, output);
    else
        finish(*run, std::nullopt);
}

} // namespace

std::shared_ptr<void> runProgram(const std::vector<std::string>& arguments,
    std::function<void(std::optional<std::string>)> handler)
{
    std::shared_ptr<void> wait(g_cancellable_new(), [](gpointer object) {
        g_cancellable_cancel(G_CANCELLABLE(object));
        g_object_unref(object);
    });
    auto* cancellable = G_CANCELLABLE(wait.get());
    auto* run = new Run{retain(cancellable), std::move(handler)};

    std::vector<const char*> words;
    words.reserve(arguments.size() + 1);
    for (const auto& argument : arguments)
        words.push_back(argument.c_str());
    words.push_back(nullptr);
    const auto flags =
        GSubprocessFlags(G_SUBPROCESS_FLAGS_STDOUT_PIPE | G_SUBPROCESS_FLAGS_STDERR_SILENCE);
    const ObjectPointer<GSubprocess> process(g_subprocess_newv(words.data(), flags, nullptr));
    if (process)
        g_subprocess_communicate_utf8_async(process.get(), nullptr, cancellable, ended, run);
    else
        Glib::signal_idle().connect_once(
            [run = std::shared_ptr<Run>(run)] { finish(*run, std::nullopt); });
    return wait;
}

} // namespace gtk
