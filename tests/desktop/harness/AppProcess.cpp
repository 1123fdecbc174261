#include "AppProcess.h"

#include "PageOnScreen.h"
#include "UserInput.h"

#include <csignal>
#include <cstdio>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>

namespace desktop {

namespace {

std::vector<std::string> commandLine(const std::vector<std::string>& arguments)
{
    std::vector<std::string> result = {VELMARO_ONLINE};
    result.insert(result.end(), arguments.begin(), arguments.end());
    return result;
}

// The lines that no healthy run writes.
std::string complaints(const std::string& errors)
{
    const std::regex pattern(
        "WARNING \\*\\*|CRITICAL \\*\\*|ERROR|runtime error:|\\(warning|Sanitizer");
    // Of a content process that was being started when the program ended.
    const std::regex harmless("Error writing credentials to socket: .*Broken pipe");
    std::string result, line;
    for (std::istringstream lines(errors); std::getline(lines, line);) {
        if (std::regex_search(line, pattern) && !std::regex_search(line, harmless))
            result += line + '\n';
    }
    return result;
}

// Says what somebody who was not there has to know of a failure. Pictures go into the working
// folder.
void tellOfFailure(Process& process)
{
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    const auto name = test ? test->test_suite_name() + std::string(".") + test->name() : "program";
    std::string report = "of what failed: ";
    int count = 0;
    for (const auto& window : Desktop::windows()) {
        const auto file = name + "-" + std::to_string(++count) + ".png";
        const auto picture = window.picture();
        const bool hasPicture = picture && picture->writePNG(file);
        report += "window \"" + window.title() + "\"" + (hasPicture ? " (" + file + "), " : ", ");
    }
    report += std::to_string(AccessibleObject::count(process.pid(), "tab"))
        + " tabs for screen readers, content processes:";
    for (const auto pid : process.descendants("WebKitWebProcess"))
        report += " " + std::to_string(pid);
    std::puts((report + "\nit wrote:\n" + process.errors()).c_str());
}

} // namespace

AppProcess::AppProcess(
    const std::vector<std::string>& arguments, const Process::Environment& environment)
    : process_(commandLine(arguments), environment)
{
}

AppProcess::AppProcess(const DemoServiceProcess& service, const std::vector<std::string>& arguments)
    : AppProcess(arguments, service.clientEnvironment())
{
}

AppProcess::~AppProcess()
{
    if (testing::Test::HasFailure())
        tellOfFailure(process_);
    process_.signal(SIGTERM);
    process_.waitForExit(std::chrono::seconds(10));
    EXPECT_EQ(complaints(process_.errors()), "");
}

std::optional<DesktopWindow> AppProcess::waitForWindow()
{
    std::optional<DesktopWindow> window;
    const bool isThere = eventually([&] {
        window = Desktop::window("Velmaro Online");
        return window || !process_.isRunning();
    });
    if (!isThere || !window)
        ADD_FAILURE() << "no window; the application wrote:\n" << process_.errors();
    return window;
}

bool AppProcess::waitForPage()
{
    const auto window = waitForWindow();
    return window && pageOnScreen(*window, generousLimit).has_value();
}

bool AppProcess::shows(const std::string& control) const
{
    return waitFor(control).has_value();
}

bool AppProcess::loses(const std::string& control) const
{
    return eventually([&] { return !AccessibleObject::find(process_.pid(), control); });
}

bool AppProcess::press(const std::string& control) const
{
    const auto found = waitFor(control);
    return found && found->activate();
}

std::optional<Point> AppProcess::place(const std::string& control)
{
    const auto window = waitForWindow();
    const auto found = waitFor(control);
    if (!window || !found)
        return {};
    const auto frame = window->frame();
    const auto bounds = found->bounds();
    return Point{frame.x + bounds.x + bounds.width / 2, frame.y + bounds.y + bounds.height / 2};
}

std::optional<AccessibleObject> AppProcess::waitFor(const std::string& control) const
{
    std::optional<AccessibleObject> found;
    const bool isThere = eventually([&] {
        found = AccessibleObject::find(process_.pid(), control);
        return found.has_value();
    });
    return isThere ? found : std::nullopt;
}

void AppProcess::pressFirstControlOfPage()
{
    const auto window = waitForWindow();
    ASSERT_TRUE(window);
    const auto frame = window->frame();
    UserInput::click(frame.x + frame.width / 2, frame.y + frame.height - 40);
    UserInput::press("Tab");
    UserInput::press("Return");
}

} // namespace desktop
