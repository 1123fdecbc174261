#pragma once

#include "platform/gtk/diagnosis/Report.h"

#include <chrono>
#include <sys/types.h>

namespace gtk {

// A check under way, in a process of its own. To be made while the program has only one thread.
class CheckProcess {
public:
    explicit CheckProcess(const Check& check);
    ~CheckProcess();

    CheckProcess(const CheckProcess&) = delete;
    CheckProcess& operator=(const CheckProcess&) = delete;

    // Waits until the check has ended or its time is over. A check that crashed or took too long is
    // reported as a problem.
    std::vector<Finding> findings();

private:
    [[noreturn]] void look(int output) const;
    bool readToEnd(std::string& text) const;
    Finding failure(const std::string& what) const;

    const Check check_;
    const std::chrono::steady_clock::time_point end_;
    pid_t pid_ = -1;
    int input_ = -1; // the pipe through which the process tells its findings
};

} // namespace gtk
