#include "platform/appkit/NSAlert.h"
#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/URLCache.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/webkit/WKWebsiteDataStore.h"
#include "tabs/RouteRestorer.h"
#include "tabs/TabbedAppModel.h"
#include "web/OnboardingKeys.h"

namespace velmaro {

using platform::NSAlert;

namespace {

constexpr auto forgottenSettings = {
    OnboardingKeys::shown,
    OnboardingKeys::completed,
    RouteRestorer::key,
    RouteRestorer::activeIndexKey,
    RouteRestorer::restoreActiveTabKey,
};

const NSAlert& question()
{
    static const NSAlert alert{
        .messageText = "Clear all cached data?",
        .informativeText =
            "This action will sign you out and remove all cache locally-stored for Velmaro "
            "Online.\n\nYou'll be returned to the Welcome screen to set things up again. This "
            "cannot be undone.",
        .alertStyle = NSAlert::Style::warning,
        .buttons = {"Clear All Data", "Cancel"},
    };
    return alert;
}

} // namespace

void TabbedAppModel::clearAllCache()
{
    question().runModal([weakSelf = weak_from_this()](int button) {
        const auto self = weakSelf.lock();
        if (self && button == NSAlert::firstButton)
            self->forgetEverything();
    });
}

// The tabs stay until their data have gone, which can take a while.
void TabbedAppModel::forgetEverything()
{
    for (const auto* key : forgottenSettings)
        platform::UserDefaults::standard().removeObject(key);

    const int clearing = ++clearings_;
    platform::removeAllData(
        platform::WKWebsiteDataStore::defaultDataStore, [weakSelf = weak_from_this(), clearing] {
            platform::DispatchQueue::main().async([weakSelf, clearing] {
                const auto self = weakSelf.lock();
                if (!self || clearing != self->clearings_) // the user has asked once more meanwhile
                    return;
                platform::URLCache::shared().removeAllCachedResponses();
                self->startAfresh();
            });
        });
}

void TabbedAppModel::startAfresh()
{
    closedTabs_ = ClosedTabs();
    tabs = Tabs{std::make_shared<WebModel>()};
    activeIndex = 0;
}

} // namespace velmaro
