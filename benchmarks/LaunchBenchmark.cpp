// Measures, from outside and with the pixels on screen as the only witness, how long after the
// start of its process a program's window is there, its page has begun to show, and its page is
// complete.
//
// The contenders take turns, so that whatever else the machine does hits all alike. The first turn
// is not counted: it fills the caches.

#include "Contender.h"
#include "harness/Desktop.h"
#include "harness/PageOnScreen.h"
#include "Samples.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

struct Result {
    Samples window;
    Samples firstContent;
    Samples complete;
};

// False when there was no complete page.
bool measure(const Contender& contender, Result& result)
{
    contender.prepare();
    const auto start = desktop::Clock::now();
    const auto process = contender.start();

    std::vector<desktop::DesktopWindow> windows;
    const bool hasWindow = desktop::eventually(
        [&] {
            windows = desktop::Desktop::windows();
            return !windows.empty();
        },
        desktop::generousLimit, desktop::shortPause);
    if (!hasWindow)
        return false;
    const auto windowSeen = desktop::Clock::now();
    const auto page = desktop::pageOnScreen(windows.front(), desktop::generousLimit);
    if (!page)
        return false;

    result.window.add(windowSeen - start);
    result.firstContent.add(page->firstSeen - start);
    result.complete.add(page->lastChange - start);

    process->signal(SIGTERM);
    process->waitForExit();
    return desktop::eventually([] { return desktop::Desktop::windows().empty(); });
}

void print(const std::vector<Contender>& contenders, const std::vector<Result>& results)
{
    std::printf("\n%-24s %18s %18s %18s %9s\n", "ms: median (middle half)", "window on screen",
        "first of the page", "page complete", "x bare");
    for (std::size_t index = 0; index < contenders.size(); ++index) {
        const auto& result = results[index];
        std::printf("%-24s %18s %18s %18s %9.2f\n", contenders[index].name.c_str(),
            result.window.text().c_str(), result.firstContent.text().c_str(),
            result.complete.text().c_str(),
            result.complete.median() / results.front().complete.median());
    }
}

int usage()
{
    std::puts("usage: launch-benchmark [--rounds N] [--without-browser]");
    return 2;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    int rounds = 10;
    bool hasBrowser = true;
    for (int index = 1; index < argumentCount; ++index) {
        if (!std::strcmp(arguments[index], "--rounds") && index + 1 < argumentCount)
            rounds = std::atoi(arguments[++index]);
        else if (!std::strcmp(arguments[index], "--without-browser"))
            hasBrowser = false;
        else
            return usage();
    }
    if (rounds < 1)
        return usage();

    const desktop::DemoServiceProcess service;
    std::vector<Contender> contenders = {bareWindow(service)};
    for (const int count : {1, 20, 200})
        contenders.push_back(applicationWithTabs(service, count));
    if (hasBrowser)
        contenders.push_back(browserApplicationMode(service));

    std::vector<Result> results(contenders.size());
    for (int round = 0; round <= rounds; ++round) {
        std::fprintf(stderr, "\rround %d of %d", round, rounds);
        for (std::size_t index = 0; index < contenders.size(); ++index) {
            Result warmUp;
            if (!measure(contenders[index], round == 0 ? warmUp : results[index])) {
                std::fprintf(stderr, "\n%s: no complete page\n", contenders[index].name.c_str());
                return 1;
            }
        }
    }
    print(contenders, results);
}
