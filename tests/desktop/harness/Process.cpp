#include "Process.h"

#include "Files.h"

#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <poll.h>
#include <sstream>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

// This header of the C library does not say that it is one of C.
extern "C" {
#include <sys/pidfd.h>
}

namespace desktop {

namespace {

std::vector<std::string> inheritedWith(const Process::Environment& changes)
{
    std::vector<std::string> result;
    for (char** entry = environ; *entry; ++entry) {
        const std::string text = *entry;
        if (!changes.count(text.substr(0, text.find('='))))
            result.push_back(text);
    }
    for (const auto& [name, value] : changes) {
        if (!value.empty())
            result.push_back(name + "=" + value);
    }
    return result;
}

std::vector<char*> pointersTo(const std::vector<std::string>& texts)
{
    std::vector<char*> result;
    for (const auto& text : texts)
        result.push_back(const_cast<char*>(text.c_str()));
    result.push_back(nullptr);
    return result;
}

void redirect(int descriptor, const char* path)
{
    const int file = open(path, O_WRONLY | O_CREAT | O_TRUNC | O_APPEND, 0600);
    dup2(file, descriptor);
    close(file);
}

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

    // Everything that allocates comes before the fork.
    const auto environment = inheritedWith(changes);
    const auto environmentPointers = pointersTo(environment);
    const auto argumentPointers = pointersTo(arguments);
    const std::string output = folder_ / "output", errors = folder_ / "errors";

    pid_ = fork();
    if (pid_ == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        redirect(STDOUT_FILENO, output.c_str());
        redirect(STDERR_FILENO, errors.c_str());
        execvpe(argumentPointers.front(), argumentPointers.data(), environmentPointers.data());
        _exit(127);
    }
    handle_ = pid_ < 0 ? -1 : pidfd_open(pid_, 0);
    if (handle_ < 0)
        throw std::runtime_error("cannot start " + arguments.front());
}

Process::~Process()
{
    signal(SIGTERM);
    if (!waitForExit(std::chrono::seconds(10))) {
        signal(SIGKILL);
        waitForExit();
    }
    close(handle_);
    std::filesystem::remove_all(folder_);
}

void Process::signal(int number) const
{
    pidfd_send_signal(handle_, number, nullptr, 0);
}

std::optional<int> Process::waitForExit(std::chrono::milliseconds limit)
{
    pollfd ended{.fd = handle_, .events = POLLIN, .revents = 0};
    if (status_ || poll(&ended, 1, static_cast<int>(limit.count())) != 1)
        return status_;
    int status = 0;
    waitpid(pid_, &status, 0);
    status_ = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    return status_;
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
