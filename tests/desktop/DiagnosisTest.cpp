// What `--diagnose` finds on machines on which something is wrong.

#include "harness/AppProcess.h"

#include <arpa/inet.h>
#include <chrono>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

namespace desktop {

namespace {

// A server that lets everybody in and says nothing.
class SilentServer {
public:
    SilentServer()
    {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        bind(socket_, reinterpret_cast<sockaddr*>(&address), size);
        listen(socket_, 10);
        getsockname(socket_, reinterpret_cast<sockaddr*>(&address), &size);
        port_ = ntohs(address.sin_port);
    }
    ~SilentServer() { close(socket_); }

    SilentServer(const SilentServer&) = delete;
    SilentServer& operator=(const SilentServer&) = delete;

    std::string origin() const { return "https://127.0.0.1:" + std::to_string(port_); }

private:
    const int socket_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    int port_ = 0;
};

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
    const SilentServer silent;
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
        {"nobody is there", {{"VELMARO_SERVICE_ORIGIN", "https://127.0.0.1:9"}},
            "problem  Service         https://127.0.0.1:9 cannot be reached"},
        {"the service says nothing", {{"VELMARO_SERVICE_ORIGIN", silent.origin()}},
            "problem  Service         " + silent.origin() + " cannot be reached"},
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
