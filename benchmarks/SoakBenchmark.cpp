// Whether the program stays as it is: its memory over a thousand tabs, and memory and processor
// time of ten tabs that nobody touches.

#include "harness/AccessibleObject.h"
#include "harness/AppProcess.h"
#include "harness/SavedSettings.h"
#include "harness/UserInput.h"
#include "ProcessCost.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>

using namespace desktop;

namespace {

using Clock = std::chrono::steady_clock;

constexpr double mostGrowth = 5; // per cent
constexpr double mostIdleTime = 0.2; // per cent of a processor, by the program without the engine

constexpr int tabsAtOnce = 10;
constexpr int tabsBetweenSamples = 100;
constexpr int minutesBetweenSamples = 10;
constexpr auto settleTime = std::chrono::seconds(10);

struct Memory {
    double program = 0; // megabytes
    double all = 0; // with the engine's processes
};

// After some seconds of rest.
Memory sample(AppProcess& app)
{
    std::this_thread::sleep_for(settleTime);
    return {ownMemoryOf(app.process().pid()), ownMemoryOf(app.process())};
}

void printHeading(const char* unit)
{
    std::printf("%8s %14s %14s\n", unit, "program", "all processes");
}

void print(int count, const Memory& memory)
{
    std::printf("%8d %11.1f MB %11.1f MB\n", count, memory.program, memory.all);
    std::fflush(stdout);
}

bool isWithin(const char* what, double value, double limit)
{
    const bool isGood = value <= limit;
    std::printf(
        "%-36s %7.3f %%, %s %.1f %%\n", what, value, isGood ? "within" : "MORE THAN", limit);
    std::fflush(stdout);
    return isGood;
}

bool isFlat(const Memory& before, const Memory& after)
{
    const auto growth = [](double from, double to) { return 100 * (to - from) / from; };
    const bool isProgramFlat =
        isWithin("growth of the program", growth(before.program, after.program), mostGrowth);
    return isWithin("growth of all processes", growth(before.all, after.all), mostGrowth)
        && isProgramFlat;
}

// Each of these pages asks the service for its figures.
void saveTabs(int count)
{
    SavedSettings::write(
        {{"vl.open.routes", std::vector<std::string>(static_cast<std::size_t>(count), "drives")},
            {"vl.open.routes.active", 0}});
    SavedSettings::writePermissions({{"notificationsAllowed", false}});
}

void openTabs(DemoServiceProcess& service, int count)
{
    service.forgetRequests();
    for (std::size_t opened = 1; opened <= static_cast<std::size_t>(count); ++opened) {
        UserInput::press("ctrl+shift+t"); // one that was closed
        if (!eventually([&] { return service.requests("/online/api/drives").size() >= opened; }))
            throw std::runtime_error("a tab without a page");
    }
}

void closeTabs(AppProcess& app, int count)
{
    const auto tabs = [&] { return AccessibleObject::count(app.process().pid(), "tab"); };
    for (int left = tabs() - 1; count > 0; --count, --left) {
        UserInput::press("ctrl+w");
        if (!eventually([&] { return tabs() == left; }))
            throw std::runtime_error("a tab that does not close");
    }
}

bool openAndClose(int count)
{
    saveTabs(1 + tabsAtOnce);
    DemoServiceProcess service;
    AppProcess app(service);
    app.waitForPage();
    std::this_thread::sleep_for(settleTime); // some of the tabs out of sight are loaded meanwhile
    closeTabs(app, tabsAtOnce);

    const auto openAndCloseSome = [&] {
        for (int tabs = 0; tabs < tabsBetweenSamples; tabs += tabsAtOnce) {
            openTabs(service, tabsAtOnce);
            closeTabs(app, tabsAtOnce);
        }
        return sample(app);
    };
    printHeading("tabs");
    const auto warm = openAndCloseSome();
    print(0, warm);
    auto latest = warm;
    for (int tabs = tabsBetweenSamples; tabs <= count; tabs += tabsBetweenSamples) {
        latest = openAndCloseSome();
        print(tabs, latest);
    }
    return isFlat(warm, latest);
}

bool rest(int minutes)
{
    constexpr int tabs = 10;
    saveTabs(tabs);
    DemoServiceProcess service;
    AppProcess app(service);
    app.waitForPage();
    for (int shown = 0; shown < tabs; ++shown) {
        UserInput::press("ctrl+Tab");
        app.waitForPage();
    }
    std::this_thread::sleep_for(std::chrono::minutes(1));

    printHeading("minutes");
    const auto before = sample(app);
    print(0, before);
    const auto start = Clock::now();
    const auto usedBefore = processorTimeOf(app.process().pid());
    auto after = before;
    for (int passed = 0; passed < minutes;) {
        passed = std::min(passed + minutesBetweenSamples, minutes);
        std::this_thread::sleep_until(start + std::chrono::minutes(passed));
        after = sample(app);
        print(passed, after);
    }
    const std::chrono::duration<double> used = processorTimeOf(app.process().pid()) - usedBefore;
    const std::chrono::duration<double> time = Clock::now() - start;
    const bool isIdle = isWithin("processor time of the program", 100 * used / time, mostIdleTime);
    return isFlat(before, after) && isIdle;
}

int usage()
{
    std::puts("usage: soak-benchmark [--tabs N] [--minutes N]");
    return 2;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    int tabs = 1000, minutes = 10; // of either, 0 leaves it out
    for (int index = 1; index < argumentCount; index += 2) {
        const bool isTabs = !std::strcmp(arguments[index], "--tabs");
        if (index + 1 == argumentCount || !(isTabs || !std::strcmp(arguments[index], "--minutes")))
            return usage();
        (isTabs ? tabs : minutes) = std::atoi(arguments[index + 1]);
    }
    const bool isFlat = tabs == 0 || openAndClose(tabs);
    const bool isIdle = minutes == 0 || rest(minutes);
    return isFlat && isIdle ? EXIT_SUCCESS : EXIT_FAILURE;
}
