#pragma once

#include "AccessibleObject.h"
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

    // Whether a control with this name comes to be on screen.
    [[nodiscard]] bool shows(const std::string& control) const;

    // Whether there comes to be none.
    [[nodiscard]] bool loses(const std::string& control) const;

    // Clicks on that control as soon as it is on screen. False when it does not come.
    [[nodiscard]] bool press(const std::string& control) const;

    // The middle of that control in pixels of the screen, as soon as it is there. Absent when it
    // does not come.
    std::optional<Point> place(const std::string& control);

    // Clicks into the page, so that it has the keyboard, and presses its first control, with which
    // somebody signs in on the page that asks for it.
    void pressFirstControlOfPage();

    // The engine's processes that run pages.
    std::vector<pid_t> webProcesses() const { return process_.descendants("WebKitWebProcess"); }

private:
    std::optional<AccessibleObject> waitFor(const std::string& control) const;

    Process process_;
};

} // namespace desktop
