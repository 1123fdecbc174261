#include "platform/gtk/usernotifications/DesktopNotifications.h"

#include "platform/gtk/foundation/ObjectPointer.h"
#include "platform/Platform.h"

#include <algorithm>
#include <filesystem>

namespace gtk {

namespace {

constexpr auto serviceName = ShownNotifications::serviceName;
constexpr auto servicePath = ShownNotifications::servicePath;

constexpr gint32 serviceDecides = -1; // how long a notification is shown

constexpr auto clickTitle = "Open";
constexpr auto defaultSound = "message-new-instant";

constexpr auto agentName = "velmaro-notification-agent";

// The agent lies beside an application that has just been built, and in the folder for helpers once
// it is installed.
std::filesystem::path agentProgram()
{
    std::error_code ignored;
    const auto application = std::filesystem::read_symlink("/proc/self/exe", ignored);
    const auto built = application.parent_path() / agentName;
    return std::filesystem::exists(built, ignored)
        ? built
        : std::filesystem::path(VELMARO_HELPERS) / agentName;
}

// Starts the program that hears clicks on the notifications and then has the session bus start
// `application`. Returns the reason when it cannot be started.
std::optional<std::string> startAgent(
    const std::string& application, const BusValues& notifications)
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

} // namespace

DesktopNotifications::DesktopNotifications(
    std::string application, ShownNotifications::ClickHandler onClick)
    : application_(std::move(application))
    , shown_(std::move(onClick))
    , service_(Gio::DBus::BusType::SESSION, serviceName,
          [this](const auto& error) { finish(platform::NSError{busFailureText(error)}); })
{
}

void DesktopNotifications::post(
    const platform::UNNotificationRequest& request, Completion completion)
{
    jobs_.push_back({request, std::move(completion)});
    if (jobs_.size() == 1)
        start();
}

void DesktopNotifications::start()
{
    if (!service_.isOpen()) {
        service_.open([this] {
            listen();
            start();
        });
    } else if (!readsMarkup_) {
        askForCapabilities();
    } else {
        notify();
    }
}

void DesktopNotifications::listen()
{
    service_.listenForOwner([this] {
        // Another service has other numbers and other capabilities.
        readsMarkup_.reset();
        shown_.clear();
    });
    shown_.listen(service_);
}

void DesktopNotifications::askForCapabilities()
{
    service_.call({.method = {servicePath, serviceName, "GetCapabilities"}, .resultType = "(as)"},
        [this](const auto& results) {
            const auto capabilities = child<std::vector<Glib::ustring>>(results, 0);
            const auto has = [&](const char* capability) {
                return std::find(capabilities.begin(), capabilities.end(), capability)
                    != capabilities.end();
            };
            readsMarkup_ = has("body-markup");
            shown_.setKeepsExpired(has("persistence"));
            notify();
        });
}

void DesktopNotifications::notify()
{
    service_.call(
        {
            .method = {servicePath, serviceName, "Notify"},
            .arguments = notifyArguments(jobs_.front().request),
            .resultType = "(u)",
        },
        [this](const auto& results) {
            const auto& shown = jobs_.front().request;
            shown_.add(child<guint32>(results, 0), shown.identifier, shown.content.userInfo);
            finish({});
        });
}

BusValues DesktopNotifications::notifyArguments(
    const platform::UNNotificationRequest& request) const
{
    const auto& content = request.content;
    BusDictionary hints{{"desktop-entry", busValue(application_)}};
    if (content.sound)
        hints.emplace("sound-name", busValue(defaultSound));
    else
        hints.emplace("suppress-sound", busValue(true));

    const auto& iconName = application_;
    const std::vector<Glib::ustring> actions{ShownNotifications::clickAction, clickTitle};
    return busValues("Velmaro Online", shown_.number(request.identifier), iconName,
        notificationText(content.title),
        *readsMarkup_ ? notificationMarkup(content.body) : notificationText(content.body), actions,
        hints, serviceDecides);
}

void DesktopNotifications::finish(const std::optional<platform::NSError>& error)
{
    const auto completion = std::move(jobs_.front().completion);
    jobs_.pop_front();
    if (!jobs_.empty())
        start();
    completion(error);
}

void DesktopNotifications::leaveToAgent() const
{
    if (shown_.isEmpty())
        return;
    if (const auto failure = startAgent(application_, shown_.serialized()))
        platform::NSLog("Velmaro notifications cannot be clicked any more: " + *failure);
}

} // namespace gtk
