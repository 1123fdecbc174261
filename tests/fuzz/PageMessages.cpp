// What a page posts, one message a line: a name, a blank and a value in JSON.

#include "app/PageMessages.h"

#include "fuzz/Target.h"
#include "platform/foundation/JSONSerialization.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "reports/ReportDownloader.h"
#include "tabs/TabbedAppModel.h"
#include "web/WebModel.h"

#include <optional>
#include <string>

using fuzz::require;
using platform::Value;
using platform::WKScriptMessage;
using velmaro::WebModel;

namespace {

struct Rule {
    std::string name;
    const char* requiredText = nullptr; // the member that must be a text
    bool requiresObject = false;
};

const Rule rules[] = {
    {"authBridge"},
    {"reportBridge", "html"},
    {"printBridge", "html"},
    {"routeBridge", "page"},
    {"onboardingBridge"},
    {"notifyBridge", nullptr, true},
    {"logoutBridge"},
    {"tabBridge"},
};

std::optional<std::string> textMember(const Value& body, const char* name)
{
    const auto* member = body.member(name);
    return member && member->string() ? std::optional(*member->string()) : std::nullopt;
}

bool asksForSomething(const WKScriptMessage& message)
{
    for (const auto& rule : rules) {
        if (message.name == rule.name)
            return (!rule.requiresObject || message.body.object())
                && (!rule.requiredText || textMember(message.body, rule.requiredText));
    }
    return false;
}

// A window on whose first tab a page posts.
class Window {
public:
    Window()
    {
        platform_.userNotificationCenter().status = platform::UNAuthorizationStatus::authorized;
        app_ = velmaro::TabbedAppModel::make();
        tab_ = app_->activeTab();
    }

    void post(const WKScriptMessage& message)
    {
        const auto before = counts();
        const auto route = tab_->currentRoute();
        const auto user = tab_->user();
        const auto action = velmaro::actionForPageMessage(velmaro::pageMessageRules(), message);
        require(static_cast<bool>(action) == asksForSomething(message),
            "messages with what their name requires are acted on, no others");
        if (!action)
            return;
        action(*tab_);
        platform_.mainQueue().runUntilIdle();

        const auto& name = message.name;
        auto expected = before;
        expected.notifications += name == "notifyBridge";
        expected.reports += name == "reportBridge" || name == "printBridge";
        expected.tabs = name == "logoutBridge" ? 1 : before.tabs + (name == "tabBridge");
        require(counts() == expected, "a message does what its name says and nothing else");
        require(app_->activeTab() != nullptr, "a tab is active");
        require(tab_->currentRoute()
                == (name == "routeBridge" ? textMember(message.body, "page").value() : route),
            "the route is the one that was reported");
        requireUser(name == "authBridge" ? reportedUser(message.body) : user);
    }

private:
    struct Counts {
        std::size_t tabs;
        std::size_t reports;
        std::size_t notifications;

        bool operator==(const Counts&) const = default;
    };

    Counts counts()
    {
        return {app_->tabs().size(), velmaro::ReportDownloader::shared().pending.size(),
            platform_.userNotificationCenter().shown.size()};
    }

    static std::optional<velmaro::UserIdentity> reportedUser(const Value& body)
    {
        if (!body.object())
            return std::nullopt;
        return velmaro::UserIdentity{
            textMember(body, "firstname").value_or(""), textMember(body, "lastname").value_or("")};
    }

    void requireUser(const std::optional<velmaro::UserIdentity>& user)
    {
        require(tab_->user() == user, "the user is the one who was reported");
        const auto stored = platform_.userDefaults().data(WebModel::userDefaultsKey);
        require(stored.has_value() == user.has_value(), "a user is stored while there is one");
        require(!stored || velmaro::UserIdentity::decoded(*stored) == user,
            "the stored user is the one who was reported");
    }

    simulated::SimulatedPlatform platform_;
    std::shared_ptr<velmaro::TabbedAppModel> app_;
    std::shared_ptr<WebModel> tab_;
};

} // namespace

void fuzz::tryInput(std::string_view input)
{
    Window window;
    while (!input.empty()) {
        const auto line = input.substr(0, input.find('\n'));
        input.remove_prefix(std::min(line.size() + 1, input.size()));
        const auto blank = std::min(line.find(' '), line.size());
        const auto body = platform::JSONSerialization::decode(line.substr(blank));
        window.post({std::string(line.substr(0, blank)), body.value_or(Value())});
    }
}
