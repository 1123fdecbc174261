// What the tab model and the view layer cost with 1, 100 and 10,000 open tabs. The backend is the
// simulated one, so a redraw is the work of bodies and reconciler, without that of a toolkit.

#include "app/VelmaroOnlineApp.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "tabs/RouteRestorer.h"
#include "tabs/TabbedAppModel.h"
#include "web/NavigationPolicy.h"

#include <benchmark/benchmark.h>

namespace velmaro {

namespace {

void openTabs(simulated::SimulatedPlatform& platform, std::int64_t count)
{
    platform.userDefaults().setStringArray(
        RouteRestorer::key, std::vector<std::string>(static_cast<std::size_t>(count), "drives"));
}

// The application with so many open tabs, its window on screen.
class RunningApplication {
public:
    explicit RunningApplication(std::int64_t tabCount)
    {
        openTabs(platform_, tabCount);
        platform_.addScreen({{0, 0}, {1440, 875}});
        platform_.application().launch(app_.appDelegate, scene_);
        redraw();
    }

    TabbedAppModel& tabs() { return *TabbedAppModel::shared(); }
    void redraw() { platform_.mainQueue().runUntilIdle(); }

private:
    VelmaroOnlineApp app_;
    ui::Scene scene_ = app_.body();
    simulated::SimulatedPlatform platform_;
};

void restoreTabs(benchmark::State& state)
{
    simulated::SimulatedPlatform platform;
    openTabs(platform, state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(TabbedAppModel::make());
}

void saveTabs(benchmark::State& state)
{
    RunningApplication application(state.range(0));
    for (auto _ : state)
        application.tabs().handleAppWillTerminate({});
}

void launch(benchmark::State& state)
{
    for (auto _ : state)
        RunningApplication application(state.range(0));
}

void selectNextTab(benchmark::State& state)
{
    RunningApplication application(state.range(0));
    for (auto _ : state) {
        application.tabs().nextTab();
        application.redraw();
    }
}

void moveFirstTabToTheEnd(benchmark::State& state)
{
    RunningApplication application(state.range(0));
    auto& model = application.tabs();
    const platform::UUID nobody;
    for (auto _ : state) {
        model.moveTab(model.tabs().front()->id, nobody);
        application.redraw();
    }
}

void openAndCloseTab(benchmark::State& state)
{
    RunningApplication application(state.range(0));
    auto& model = application.tabs();
    for (auto _ : state) {
        model.newTab();
        application.redraw();
        model.closeTab(static_cast<int>(model.tabs().size()) - 1);
        application.redraw();
    }
}

// The commonest change of all: a page that loads reports how far it has come.
void reportProgress(benchmark::State& state)
{
    RunningApplication application(state.range(0));
    auto& tab = *application.tabs().tabs().back();
    tab.isLoading = true;
    double progress = 0;
    for (auto _ : state) {
        progress = progress < 1 ? progress + 0.01 : 0;
        tab.estimatedProgress = progress;
        application.redraw();
    }
}

// From the address as the web engine tells it to the decision.
void decideNavigation(benchmark::State& state)
{
    const simulated::SimulatedPlatform platform;
    const auto& service = Service::current();
    constexpr auto address =
        "https://www.elsewhere.example:8443/a/page/of/some/length?with=a&few={items}#and-a-place";
    for (auto _ : state) {
        const auto url = platform::URL::encodingInvalidCharacters(address);
        benchmark::DoNotOptimize(useOfNavigation(*url, service));
    }
}

void tabCounts(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(1)->Arg(100)->Arg(10'000)->Unit(benchmark::kMicrosecond);
}

BENCHMARK(restoreTabs)->Apply(tabCounts);
BENCHMARK(saveTabs)->Apply(tabCounts);
BENCHMARK(launch)->Apply(tabCounts);
BENCHMARK(selectNextTab)->Apply(tabCounts);
BENCHMARK(moveFirstTabToTheEnd)->Apply(tabCounts);
BENCHMARK(openAndCloseTab)->Apply(tabCounts);
BENCHMARK(reportProgress)->Apply(tabCounts);
BENCHMARK(decideNavigation);

} // namespace

} // namespace velmaro
