// What `--diagnose` finds on machines on which something is wrong.

#include "harness/AppProcess.h"

#include <chrono>
#include <fstream>
#include <gio/gio.h>
#include <gtest/gtest.h>

namespace desktop {

namespace {

void chooseDownloads(const std::string& folder)
{
    std::filesystem::create_directories(std::getenv("XDG_CONFIG_HOME"));
    std::ofstream(std::string(std::getenv("XDG_CONFIG_HOME")) + "/user-dirs.dirs")
        << "XDG_DOWNLOAD_DIR=\"" << folder << "\"\n";
}

} // namespace

TEST(Diagnosis, namesWhatIsWrongAndEndsInTime)
{
    constexpr auto limit = std::chrono::seconds(10);
    const DemoServiceProcess service;
    g_autoptr(GSocketListener) listener = g_socket_listener_new(); // lets all in and says nothing
    const auto port = g_socket_listener_add_any_inet_port(listener, nullptr, nullptr);
    const auto silent = "https://127.0.0.1:" + std::to_string(port);
    struct Case {
        const char* name;
        Process::Environment changes;
        std::string line; // of the report, from its beginning
    };
    const std::string usualDownloads = std::string(std::getenv("HOME")) + "/Downloads";
    const Case cases[] = {
        {"nothing is wrong", {}, "ok       Certificate     issued by CN="},
        {"no display", {{"DISPLAY", ""}}, "problem  Display         there is none"},
        {"no bus", {{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent"}},
            "warning  Notifications   there is no message bus"},
        {"no driver at all", {{"LIBGL_DRIVERS_PATH", "/nonexistent"}}, "problem  Drawing "},
        {"nobody vouches for the service", {{"VELMARO_SERVICE_CERTIFICATE", ""}},
            "problem  Certificate     issued by CN="},
        {"the service says nothing", {{"VELMARO_SERVICE_ORIGIN", silent}},
            "problem  Service         " + silent + " cannot be reached"},
        {"files cannot be saved", {}, "problem  Downloads       /proc cannot be written to"},
    };
    for (const auto& [name, changes, line] : cases) {
        SCOPED_TRACE(name);
        chooseDownloads(line.find("/proc") == std::string::npos ? usualDownloads : "/proc");
        auto environment = service.clientEnvironment();
        for (const auto& [variable, value] : changes)
            environment[variable] = value;

        const auto start = std::chrono::steady_clock::now();
        AppProcess app({"--diagnose"}, environment);
        const bool isProblem = line.starts_with("problem");
        EXPECT_EQ(app.process().waitForExit(), isProblem ? 1 : 0);
        EXPECT_LT(std::chrono::steady_clock::now() - start, limit);

        const auto report = '\n' + app.process().output();
        EXPECT_NE(report.find('\n' + line), std::string::npos) << report;
        EXPECT_NE(report.find(isProblem ? " problem" : "\n0 problems"), std::string::npos)
            << report;
        EXPECT_EQ(report.find(std::getenv("HOME")), std::string::npos) << report;
        EXPECT_EQ(app.process().errors(), "");
    }
}

} // namespace desktop
