#pragma once

#include "platform/gtk/diagnosis/Check.h"

#include <chrono>
#include <sys/types.h>

namespace gtk {

// A check under way. To be made while the program has one thread.
class CheckProcess {
public:
    explicit CheckProcess(const Check& check);
    ~CheckProcess();

    CheckProcess(const CheckProcess&) = delete;
    CheckProcess& operator=(const CheckProcess&) = delete;

    // Waits until it has ended or its time is over. One that crashed or was stopped yields a
    // problem.
    std::vector<Finding> findings();

private:
    [[noreturn]] void look(int output) const;
    bool readToEnd(std::string& text) const;
    Finding failure(const std::string& what) const;

    const Check check_;
    const std::chrono::steady_clock::time_point end_;
    pid_t pid_ = -1;
    int input_ = -1; // what the process finds
};

} // namespace gtk
