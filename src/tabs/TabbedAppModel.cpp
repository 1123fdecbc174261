#include "tabs/TabbedAppModel.h"

#include "platform/appkit/NSApplication.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/Platform.h"
#include "tabs/RouteRestorer.h"
#include "tabs/TabPreloader.h"

#include <algorithm>

namespace velmaro {

using platform::NotificationCenter;
using platform::NSApplication;
using platform::UserDefaults;

namespace {

constexpr std::size_t mostClosedTabs = 25; // they can be reopened

struct SharedModel {
    std::weak_ptr<TabbedAppModel> model;
};

TabbedAppModel::Tabs restoredTabs()
{
    TabbedAppModel::Tabs tabs;
    for (const auto& route : RouteRestorer::loadRoutes())
        tabs.push_back(std::make_shared<WebModel>(route));
    if (tabs.empty())
        tabs.push_back(std::make_shared<WebModel>());
    return tabs;
}

// An index that no longer fits falls back to the first tab.
int restoredActiveIndex(std::size_t count)
{
    if (!RouteRestorer::restoreActiveTabEnabled())
        return 0;
    const auto index = UserDefaults::standard().integer(RouteRestorer::activeIndexKey);
    return index >= 0 && static_cast<std::uint64_t>(index) < count ? static_cast<int>(index) : 0;
}

auto findTab(const TabbedAppModel::Tabs& tabs, const platform::UUID& id)
{
    return std::ranges::find(tabs, id, [](const auto& tab) { return tab->id; });
}

} // namespace

std::shared_ptr<TabbedAppModel> TabbedAppModel::shared()
{
    return platform::Platform::current().shared<SharedModel>().model.lock();
}

std::shared_ptr<TabbedAppModel> TabbedAppModel::make()
{
    std::shared_ptr<TabbedAppModel> model(new TabbedAppModel);
    platform::Platform::current().shared<SharedModel>().model = model;
    model->terminationObserver_ =
        NotificationCenter::defaultCenter().addObserver(NSApplication::willTerminateNotification,
            nullptr, [weakModel = std::weak_ptr(model)](const auto& notification) {
                if (const auto model = weakModel.lock())
                    model->handleAppWillTerminate(notification);
            });
    model->preloader_ = std::make_shared<TabPreloader>(model);
    model->preloader_->start();
    return model;
}

TabbedAppModel::TabbedAppModel()
    : tabs(restoredTabs())
    , activeIndex(restoredActiveIndex(tabs().size()))
{
}

std::shared_ptr<WebModel> TabbedAppModel::activeTab() const
{
    const int index = activeIndex();
    return index >= 0 && index < count() ? tabs()[static_cast<std::size_t>(index)] : nullptr;
}

void TabbedAppModel::newTab(const std::optional<std::string>& route)
{
    auto tab = std::make_shared<WebModel>(route.value_or("newtab"));
    tabs.mutate([&](auto& tabs) { tabs.push_back(std::move(tab)); });
    activeIndex = count() - 1;
}

void TabbedAppModel::closeTab(int index)
{
    if (index < 0 || index >= count())
        return;
    if (count() == 1) {
        // The tab stays in the list, so that it is saved on the way out.
        if (const auto window = NSApplication::shared().keyWindow())
            window->close();
        return;
    }
    noteClosedTab(index);
    tabs.mutate([&](auto& tabs) { tabs.erase(tabs.begin() + index); });
    activeIndex = std::clamp(activeIndex(), 0, count() - 1);
}

void TabbedAppModel::noteClosedTab(int index)
{
    const auto& route = tabs()[static_cast<std::size_t>(index)]->currentRoute();
    closedTabs_.mutate([&](auto& closed) {
        closed.push_back({route, index});
        if (closed.size() > mostClosedTabs)
            closed.erase(closed.begin());
    });
}

void TabbedAppModel::reopenClosedTab()
{
    if (!canReopenTab())
        return;
    const auto closed = closedTabs_().back();
    closedTabs_.mutate([](auto& closed) { closed.pop_back(); });

    const int index = std::min(closed.index, count());
    const auto route = closed.route.empty() ? std::nullopt : std::optional(closed.route);
    tabs.mutate(
        [&](auto& tabs) { tabs.insert(tabs.begin() + index, std::make_shared<WebModel>(route)); });
    activeIndex = index;
}

void TabbedAppModel::nextTab()
{
    if (count() > 0)
        activeIndex = (activeIndex() + 1) % count();
}

void TabbedAppModel::previousTab()
{
    if (count() > 0)
        activeIndex = (activeIndex() - 1 + count()) % count();
}

void TabbedAppModel::moveTab(const platform::UUID& draggedId, const platform::UUID& targetId)
{
    if (draggedId == targetId || findTab(tabs(), draggedId) == tabs().end())
        return;

    const auto active = activeTab();
    tabs.mutate([&](auto& tabs) {
        const auto from = findTab(tabs, draggedId);
        auto dragged = std::move(*from);
        tabs.erase(from);
        tabs.insert(findTab(tabs, targetId), std::move(dragged));
    });
    if (active)
        activeIndex = static_cast<int>(findTab(tabs(), active->id) - tabs().begin());
}

void TabbedAppModel::keepOnlyActiveTab()
{
    const auto active = activeTab();
    if (!active)
        return;
    closedTabs_ = ClosedTabs(); // they were those of a user who has signed out
    tabs = Tabs{active};
    activeIndex = 0;
}

void TabbedAppModel::handleAppWillTerminate(const platform::Notification&)
{
    std::vector<std::string> routes;
    for (const auto& tab : tabs())
        routes.push_back(tab->currentRoute());
    RouteRestorer::saveRoutes(routes);
    UserDefaults::standard().setInteger(RouteRestorer::activeIndexKey, activeIndex());
}

} // namespace velmaro
