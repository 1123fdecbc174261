// Measures what tabs cost in memory, beside the same pages in a browser: the proportional set size
// of all processes together, some seconds after the last page has come.

#include "harness/AccessibleObject.h"
#include "harness/AppProcess.h"
#include "harness/SavedSettings.h"
#include "ProcessCost.h"

#include <cstdio>
#include <cstdlib>
#include <thread>
#include <unistd.h>

using namespace desktop;

namespace {

constexpr auto timeForPage = std::chrono::seconds(2);
constexpr auto rest = std::chrono::seconds(8);

void openTabs(AppProcess& app, int count)
{
    for (int opened = 1; opened < count; ++opened) {
        const auto button = AccessibleObject::find(app.process().pid(), "New Tab");
        if (!button || !button->activate())
            throw std::runtime_error("no button for a new tab");
        std::this_thread::sleep_for(timeForPage);
    }
}

void measureApplication(const DemoServiceProcess& service, int restored, int opened)
{
    SavedSettings::write(
        {{"vl.open.routes", std::vector<std::string>(static_cast<std::size_t>(restored), "newtab")},
            {"vl.open.routes.active", 0}});
    AppProcess app(service);
    app.waitForPage();
    openTabs(app, opened);
    std::this_thread::sleep_for(rest);
    std::printf("application, %3d restored, %3d opened %8.0f MB, %zu web processes\n", restored,
        opened - 1, memoryOf(app.process()), app.webProcesses().size());
    std::fflush(stdout);
}

void measureBrowser(const DemoServiceProcess& service, int count)
{
    std::vector<std::string> arguments = {"chromium",
        "--user-data-dir=" + std::string(std::getenv("HOME")) + "/chromium" + std::to_string(count),
        "--ignore-certificate-errors", "--test-type", "--no-first-run",
        "--no-default-browser-check", "--disable-background-networking",
        "--disable-component-update", "--disable-sync"};
    if (geteuid() == 0)
        arguments.emplace_back("--no-sandbox");
    for (int tab = 0; tab < count; ++tab)
        arguments.push_back(service.origin() + "/online?" + std::to_string(tab) + "#newtab");
    const Process browser(arguments);
    std::this_thread::sleep_for(std::chrono::seconds(5 + count / 2) + rest);
    std::printf("Chromium,    %3d opened               %8.0f MB\n", count, memoryOf(browser));
    std::fflush(stdout);
}

} // namespace

int main()
{
    const DemoServiceProcess service;
    for (const int count : {1, 10, 20}) {
        measureApplication(service, 1, count);
        measureBrowser(service, count);
    }
    measureApplication(service, 50, 1);
    measureBrowser(service, 50);
}
