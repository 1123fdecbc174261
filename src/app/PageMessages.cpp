#include "app/PageMessages.h"

#include "notifications/NotificationCenterBridge.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/foundation/UUID.h"
#include "platform/usernotifications/UNUserNotificationCenter.h"
#include "reports/ReportDownloader.h"
#include "tabs/TabbedAppModel.h"
#include "web/OnboardingKeys.h"
#include "web/WebModel.h"

namespace velmaro {

using platform::UserDefaults;
using platform::Value;

namespace {

std::optional<std::string> stringMember(const Value& body, const char* name)
{
    const auto* member = body.member(name);
    const auto* text = member ? member->string() : nullptr;
    return text ? std::optional(*text) : std::nullopt;
}

// The user is asked early, so that the first notification finds the question answered.
void askForNotifications()
{
    platform::UNUserNotificationCenter::currentNotificationCenter().getNotificationSettings(
        [](const auto& settings) {
            NotificationCenterBridge::shared().ensureAuthorized(settings, [](bool) {});
        });
}

// An object is a signed-in user, whatever it holds; anything else means that no user is.
PageAction reportUser(const Value& body)
{
    std::optional<UserIdentity> identity;
    if (body.object()) {
        identity = UserIdentity{.firstname = stringMember(body, "firstname").value_or(""),
            .lastname = stringMember(body, "lastname").value_or("")};
    }
    return [identity](WebModel& model) {
        const bool signsIn = identity && !model.user();
        model.setUser(identity);
        if (signsIn)
            askForNotifications();
    };
}

constexpr auto defaultReportTitle = "Velmaro Report";

PageAction saveReport(const Value& body)
{
    const auto html = stringMember(body, "html");
    if (!html)
        return {};
    return [title = stringMember(body, "title").value_or(defaultReportTitle),
               filename = stringMember(body, "filename"), html = *html](
               WebModel&) { ReportDownloader::shared().savePDF(title, filename, html); };
}

PageAction printReport(const Value& body)
{
    const auto html = stringMember(body, "html");
    if (!html)
        return {};
    return [title = stringMember(body, "title").value_or(defaultReportTitle), html = *html](
               WebModel&) { ReportDownloader::shared().printReport(title, html); };
}

PageAction reportRoute(const Value& body)
{
    const auto page = stringMember(body, "page");
    if (!page)
        return {};
    return [page = *page](WebModel& model) { model.currentRoute = page; };
}

PageAction finishOnboarding(const Value&)
{
    return [](WebModel&) {
        UserDefaults::standard().setBoolean(OnboardingKeys::completed, true);
        UserDefaults::standard().setBoolean(OnboardingKeys::shown, true);
    };
}

PageAction notify(const Value& body)
{
    if (!body.object())
        return {};
    return
        [title = stringMember(body, "title").value_or("Velmaro"),
            text = stringMember(body, "body").value_or(""), link = stringMember(body, "url"),
            identifier = stringMember(body, "id").value_or(platform::UUID().string())](
            WebModel&) { NotificationCenterBridge::shared().post(title, text, link, identifier); };
}

PageAction logOut(const Value&)
{
    return [](WebModel&) {
        if (const auto app = TabbedAppModel::shared())
            app->keepOnlyActiveTab();
    };
}

PageAction openTab(const Value&)
{
    return [](WebModel&) {
        if (const auto app = TabbedAppModel::shared())
            app->newTab();
    };
}

} // namespace

PageMessageRules pageMessageRules()
{
    return {
        {"authBridge", reportUser},
        {"reportBridge", saveReport},
        {"printBridge", printReport},
        {"routeBridge", reportRoute},
        {"onboardingBridge", finishOnboarding},
        {"notifyBridge", notify},
        {"logoutBridge", logOut},
        {"tabBridge", openTab},
    };
}

} // namespace velmaro
