#pragma once

#include "DemoServiceProcess.h"
#include "Desktop.h"

namespace desktop {

// The application itself, in the private home. When it goes away the test fails if the toolkit, the
// engine or a sanitizer has complained on the standard error output.
class AppProcess {
public:
    explicit AppProcess(const std::vector<std::string>& arguments = {},
        const Process::Environment& environment = {});
    explicit AppProcess(
        const DemoServiceProcess& service, const std::vector<std::string>& arguments = {});
    ~AppProcess();

    Process& process() { return process_; }

    // Its window, once there is one. Absent when none comes.
    std::optional<DesktopWindow> waitForWindow();

    // Whether the window comes to show a page rather than the splash or nothing, and stops
    // changing.
    bool waitForPage();

    // The engine's processes that run pages.
    std::vector<pid_t> webProcesses() const { return process_.descendants("WebKitWebProcess"); }

private:
    Process process_;
};

} // namespace desktop
