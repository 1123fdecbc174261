// What a page posts, one message a line: a name, a blank and a value in JSON.

#include "app/PageMessages.h"

#include "fuzz/Target.h"
#include "platform/foundation/JSONSerialization.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "tabs/TabbedAppModel.h"
#include "web/WebModel.h"

#include <algorithm>
#include <string>

using fuzz::require;
using velmaro::WebModel;

namespace {

void requireStored(const WebModel& tab)
{
    const auto stored = platform::UserDefaults::standard().data(WebModel::userDefaultsKey);
    require(stored.has_value() == tab.user().has_value(), "a user is stored while there is one");
    require(!stored || velmaro::UserIdentity::decoded(*stored) == tab.user(),
        "the stored user is the one who was reported");
}

void post(const platform::WKScriptMessage& message, velmaro::TabbedAppModel& app, WebModel& tab)
{
    const auto action = velmaro::actionForPageMessage(velmaro::pageMessageRules(), message);
    if (!action)
        return;
    const auto route = tab.currentRoute();
    const auto tabCount = app.tabs().size();
    action(tab);
    require(message.name == "routeBridge" || tab.currentRoute() == route, "a route stays");
    require(message.name == "logoutBridge" || app.tabs().size() >= tabCount, "tabs stay");
    require(app.activeTab() != nullptr, "a tab is active");
    requireStored(tab);
}

} // namespace

void fuzz::tryInput(std::string_view input)
{
    simulated::SimulatedPlatform platform;
    platform.userNotificationCenter().status = platform::UNAuthorizationStatus::authorized;
    const auto app = velmaro::TabbedAppModel::make();
    const auto tab = app->activeTab();
    while (!input.empty()) {
        const auto line = input.substr(0, input.find('\n'));
        input.remove_prefix(std::min(line.size() + 1, input.size()));
        const auto blank = std::min(line.find(' '), line.size());
        const auto body = platform::JSONSerialization::decode(line.substr(blank));
        post({std::string(line.substr(0, blank)), body.value_or(platform::Value())}, *app, *tab);
        platform.mainQueue().runUntilIdle();
    }
}
