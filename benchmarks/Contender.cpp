#include "Contender.h"

#include "harness/Desktop.h"
#include "harness/SavedSettings.h"

#include <unistd.h>
#include <vector>

using desktop::DemoServiceProcess;
using desktop::Process;

namespace {

constexpr auto route = "drives";

std::string address(const DemoServiceProcess& service)
{
    return service.origin() + "/online#" + route;
}

// All windows are as large as the application's.
std::pair<std::string, std::string> size()
{
    const auto area = desktop::Desktop::workArea();
    return {std::to_string(area.width * 85 / 100), std::to_string(area.height * 85 / 100)};
}

} // namespace

Contender applicationWithTabs(const DemoServiceProcess& service, int count)
{
    const nlohmann::json settings = {
        {"vl.open.routes", std::vector<std::string>(count, route)},
        {"vl.open.routes.active", count / 2},
    };
    return {
        .name = "application, " + std::to_string(count) + (count == 1 ? " tab" : " tabs"),
        .prepare = [settings] { desktop::SavedSettings::write(settings); },
        .start =
            [&service] {
                return std::make_unique<Process>(
                    std::vector<std::string>{VELMARO_ONLINE}, service.clientEnvironment());
            },
    };
}

Contender bareWindow(const DemoServiceProcess& service)
{
    const auto [width, height] = size();
    const std::vector<std::string> arguments = {BARE_WINDOW, address(service),
        service.clientEnvironment()["VELMARO_SERVICE_CERTIFICATE"], width, height};
    return {
        .name = "bare web view",
        .prepare = [] {},
        .start = [arguments] { return std::make_unique<Process>(arguments); },
    };
}

Contender browserApplicationMode(const DemoServiceProcess& service)
{
    const auto [width, height] = size();
    std::vector<std::string> arguments = {
        "chromium",
        "--app=" + address(service),
        "--user-data-dir=" + std::string(std::getenv("HOME")) + "/chromium",
        "--window-size=" + width + "," + height,
        "--ignore-certificate-errors",
        "--test-type", // no bar that warns of the option before
        "--no-first-run",
        "--no-default-browser-check",
        "--disable-background-networking",
        "--disable-component-update",
        "--disable-sync",
    };
    if (geteuid() == 0)
        arguments.emplace_back("--no-sandbox");
    return {
        .name = "Chromium --app",
        .prepare = [] {},
        .start = [arguments] { return std::make_unique<Process>(arguments); },
    };
}
