#include "tabs/TabPreloader.h"

#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/ProcessInfo.h"
#include "platform/webkit/WKWebView.h"
#include "tabs/TabbedAppModel.h"

#include <algorithm>

namespace velmaro {

using platform::DispatchQueue;

namespace {

bool isLive(const std::shared_ptr<WebModel>& tab)
{
    return tab->isLoadedAhead() || !tab->webView.expired();
}

// It is null when all tabs are live.
std::shared_ptr<WebModel> nearestUnloadedTab(const TabbedAppModel& app)
{
    const auto& tabs = app.tabs();
    const auto count = static_cast<int>(tabs.size());
    for (int distance = 1; distance < count; ++distance) {
        for (const int index : {app.activeIndex() + distance, app.activeIndex() - distance}) {
            if (index >= 0 && index < count && !isLive(tabs[static_cast<std::size_t>(index)]))
                return tabs[static_cast<std::size_t>(index)];
        }
    }
    return nullptr;
}

} // namespace

void TabPreloader::start()
{
    DispatchQueue::main().asyncWhenIdle([weakSelf = weak_from_this()] {
        DispatchQueue::main().asyncAfter(pause, [weakSelf] {
            if (const auto self = weakSelf.lock())
                self->loadNext();
        });
    });
}

void TabPreloader::loadNext()
{
    const auto app = app_.lock();
    if (!app || std::ranges::count_if(app->tabs(), isLive) >= mostLiveTabs)
        return;
    const auto tab = nearestUnloadedTab(*app);
    if (!tab || platform::ProcessInfo::processInfo().availableMemory() < spareMemory)
        return;
    tab->isLoadedAhead = true;
    watch(tab);
}

// The next one comes when this one has its title and has finished.
void TabPreloader::watch(const std::shared_ptr<WebModel>& tab)
{
    loading_ = tab;
    observation_.emplace(
        [&] {
            tab->isLoading();
            tab->pageTitle();
        },
        [this] { continueWhenLoaded(); });
}

void TabPreloader::continueWhenLoaded()
{
    const auto tab = loading_.lock();
    if (!tab || tab->isLoading() || tab->pageTitle().empty())
        return;
    loading_.reset();
    start();
}

} // namespace velmaro
