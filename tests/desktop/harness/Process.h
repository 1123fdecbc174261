#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

// Of GLib, whose headers not every user of this one has.
using GSubprocess = struct _GSubprocess; // NOLINT(bugprone-reserved-identifier)

namespace desktop {

// Longer than anything on a busy machine may take: tests end early when a condition comes true, and
// never wait for a fixed time.
constexpr auto generousLimit = std::chrono::seconds(30);

// Waits until `condition`, which is looked at with pauses in between, holds and returns true; or
// false when it has not held before `limit` is over.
[[nodiscard]] bool eventually(const std::function<bool()>& condition,
    std::chrono::milliseconds limit = generousLimit,
    std::chrono::milliseconds pause = std::chrono::milliseconds(20));

// A program that runs beside the test, and no longer than this object.
class Process {
public:
    // What to set in the inherited environment; an empty value takes the variable away.
    using Environment = std::map<std::string, std::string>;

    // Throws std::runtime_error when the program is missing or the system cannot start another.
    explicit Process(
        const std::vector<std::string>& arguments, const Environment& environment = {});

    // Asks it to end and, after ten seconds, makes it end.
    ~Process();

    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    pid_t pid() const { return pid_; }
    bool isRunning() const { return !waitForExit(std::chrono::milliseconds(0)); }
    void signal(int number) const;

    // The exit status, or minus the number of the signal that ended it. Absent when it is running
    // after `limit`.
    std::optional<int> waitForExit(std::chrono::milliseconds limit = generousLimit) const;

    // Everything it has written so far.
    std::string output() const;
    std::string errors() const;

    // The processes below this one, oldest first: those whose program has `name`, or all when it is
    // empty.
    std::vector<pid_t> descendants(const std::string& name = {}) const;

private:
    std::filesystem::path folder_; // of the two files that take the output
    pid_t pid_ = -1;
    GSubprocess* subprocess_ = nullptr; // owned
};

} // namespace desktop
