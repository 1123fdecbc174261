#include "Process.h"

#include "Files.h"

#include <csignal>
#include <fstream>
#include <gio/gio.h>
#include <sstream>
#include <stdexcept>
#include <sys/prctl.h>
#include <thread>

namespace desktop {

namespace {

struct ProcessStatus {
    std::string name;
    pid_t parent = 0;
};

ProcessStatus statusOf(pid_t pid)
{
    ProcessStatus status;
    std::ifstream file("/proc/" + std::to_string(pid) + "/stat");
    std::string text;
    std::getline(file, text);
    const auto open = text.find('('), close = text.rfind(')');
    if (close == std::string::npos)
        return status;
    status.name = text.substr(open + 1, close - open - 1);
    char state = 0;
    std::istringstream(text.substr(close + 1)) >> state >> status.parent;
    if (state == 'Z') // Ended: only its number is left.
        status.name.clear();
    return status;
}

} // namespace

bool eventually(const std::function<bool()>& condition, std::chrono::milliseconds limit,
    std::chrono::milliseconds pause)
{
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(pause);
    }
    return true;
}

Process::Process(const std::vector<std::string>& arguments, const Environment& changes)
{
    auto folder = (std::filesystem::temp_directory_path() / "velmaro-process.XXXXXX").string();
    if (!mkdtemp(folder.data()))
        throw std::runtime_error("no folder for the output of " + arguments.front());
    folder_ = folder;

    g_autoptr(GSubprocessLauncher) launcher =
        g_subprocess_launcher_new(G_SUBPROCESS_FLAGS_STDIN_INHERIT);
    for (const auto& [name, value] : changes) {
        if (value.empty())
            g_subprocess_launcher_unsetenv(launcher, name.c_str());
        else
            g_subprocess_launcher_setenv(launcher, name.c_str(), value.c_str(), true);
    }
    g_subprocess_launcher_set_stdout_file_path(launcher, (folder_ / "output").c_str());
    g_subprocess_launcher_set_stderr_file_path(launcher, (folder_ / "errors").c_str());
    g_subprocess_launcher_set_child_setup(
        launcher, [](gpointer) { prctl(PR_SET_PDEATHSIG, SIGKILL); }, nullptr, nullptr);

    std::vector<const char*> texts;
    for (const auto& argument : arguments)
        texts.push_back(argument.c_str());
    texts.push_back(nullptr);
    subprocess_ = g_subprocess_launcher_spawnv(launcher, texts.data(), nullptr);
    if (!subprocess_)
        throw std::runtime_error("cannot start " + arguments.front());
    if (const char* identifier = g_subprocess_get_identifier(subprocess_)) // not when it has ended
        pid_ = std::atoi(identifier);
}

Process::~Process()
{
    signal(SIGTERM);
    if (!waitForExit(std::chrono::seconds(10))) {
        signal(SIGKILL);
        waitForExit();
    }
    g_object_unref(subprocess_);
    std::filesystem::remove_all(folder_);
}

void Process::signal(int number) const
{
    g_subprocess_send_signal(subprocess_, number);
}

std::optional<int> Process::waitForExit(std::chrono::milliseconds limit) const
{
    if (!eventually([&] { return !g_subprocess_get_identifier(subprocess_); }, limit))
        return {};
    return g_subprocess_get_if_exited(subprocess_) ? g_subprocess_get_exit_status(subprocess_)
                                                   : -g_subprocess_get_term_sig(subprocess_);
}

std::string Process::output() const
{
    return contentsOf(folder_ / "output");
}

std::string Process::errors() const
{
    return contentsOf(folder_ / "errors");
}

std::vector<pid_t> Process::descendants(const std::string& name) const
{
    std::map<pid_t, ProcessStatus> all;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const pid_t pid = std::atoi(entry.path().filename().c_str());
        if (pid > 0)
            all[pid] = statusOf(pid);
    }
    std::vector<pid_t> result;
    for (const auto& [pid, status] : all) {
        // The system cuts the names of programs after 15 characters.
        const bool isNamed = name.empty() || status.name == name.substr(0, 15);
        if (status.name.empty() || !isNamed)
            continue;
        pid_t ancestor = status.parent;
        while (ancestor > 1 && ancestor != pid_)
            ancestor = all[ancestor].parent;
        if (ancestor == pid_)
            result.push_back(pid);
    }
    return result;
}

} // namespace desktop
