#include "platform/gtk/diagnosis/CheckProcess.h"

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace gtk {

namespace {

using Clock = std::chrono::steady_clock;

constexpr char fieldEnd = '\0';

std::string written(const std::vector<Finding>& findings)
{
    std::string text;
    for (const auto& [title, finding, verdict, advice] : findings) {
        for (const auto& field :
            {title, finding, std::to_string(static_cast<int>(verdict)), advice})
            text += field + fieldEnd;
    }
    return text;
}

std::vector<Finding> read(const std::string& text)
{
    std::vector<Finding> findings;
    std::istringstream fields(text);
    Finding next;
    std::string verdict;
    while (std::getline(fields, next.title, fieldEnd)
        && std::getline(fields, next.finding, fieldEnd) && std::getline(fields, verdict, fieldEnd)
        && std::getline(fields, next.advice, fieldEnd)) {
        next.verdict = static_cast<Verdict>(std::stoi(verdict));
        findings.push_back(next);
    }
    return findings;
}

// The libraries that a check calls print much that is of no use to a reader of the report.
void silence()
{
    const int nothing = open("/dev/null", O_RDWR);
    dup2(nothing, STDOUT_FILENO);
    dup2(nothing, STDERR_FILENO);
}

} // namespace

CheckProcess::CheckProcess(const Check& check)
    : check_(check)
    , end_(Clock::now()
          + std::chrono::duration_cast<Clock::duration>(
              std::chrono::duration<double>(check.patience)))
{
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC) != 0)
        return;
    input_ = ends[0];
    pid_ = fork();
    if (pid_ == 0)
        look(ends[1]);
    close(ends[1]);
}

CheckProcess::~CheckProcess()
{
    if (input_ >= 0)
        close(input_);
    if (pid_ <= 0)
        return;
    kill(-pid_, SIGKILL); // together with the processes that it has started
    kill(pid_, SIGKILL);
    waitpid(pid_, nullptr, 0);
}

void CheckProcess::look(int output) const
{
    setpgid(0, 0);
    silence();
    const auto text = written(check_.look());
    const auto size = write(output, text.data(), text.size());
    _exit(size == static_cast<ssize_t>(text.size()) ? EXIT_SUCCESS : EXIT_FAILURE);
}

std::vector<Finding> CheckProcess::findings()
{
    std::string text;
    if (pid_ <= 0)
        return {failure("the system starts no more processes")};
    if (!readToEnd(text))
        return {failure("no answer in time")};
    auto findings = read(text);
    if (findings.empty())
        return {failure("looking at it ended in a crash")};
    return findings;
}

bool CheckProcess::readToEnd(std::string& text) const
{
    using std::chrono::ceil, std::chrono::milliseconds;
    for (;;) {
        const auto rest = std::max(ceil<milliseconds>(end_ - Clock::now()), milliseconds(0));
        pollfd descriptor = {.fd = input_, .events = POLLIN, .revents = 0};
        if (poll(&descriptor, 1, static_cast<int>(rest.count())) <= 0)
            return false;
        char piece[4096];
        const auto size = ::read(input_, piece, sizeof piece);
        if (size <= 0)
            return true;
        text.append(piece, static_cast<std::size_t>(size));
    }
}

Finding CheckProcess::failure(const std::string& what) const
{
    return {check_.title, what, Verdict::problem, check_.adviceWhenStuck};
}

} // namespace gtk
