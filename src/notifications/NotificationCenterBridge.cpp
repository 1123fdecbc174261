#include "notifications/NotificationCenterBridge.h"

#include "platform/appkit/NSApplication.h"
#include "platform/appkit/NSWorkspace.h"
#include "platform/foundation/DispatchQueue.h"
#include "platform/Platform.h"
#include "platform/usernotifications/UNUserNotificationCenter.h"

#include <algorithm>

namespace velmaro {

using platform::NSApplication;
using platform::UNAuthorizationStatus;
using platform::UNUserNotificationCenter;

namespace {

constexpr auto deepLinkKey = "vlDeepLink";
constexpr auto options = platform::unAuthorizationOptionBadge | platform::unAuthorizationOptionSound
    | platform::unAuthorizationOptionAlert;
constexpr auto foregroundPresentation = platform::unNotificationPresentationOptionBanner
    | platform::unNotificationPresentationOptionSound;

void comeForward()
{
    auto& application = NSApplication::shared();
    application.activateIgnoringOtherApps(true);
    const auto windows = application.windows();
    const auto window = std::ranges::find_if(
        windows, [](const auto& candidate) { return candidate->canBecomeMainWindow(); });
    if (window != windows.end())
        (*window)->makeKeyAndOrderFront();
}

std::optional<platform::URL> deepLinkOf(const platform::UNNotificationResponse& response)
{
    const auto link = response.userInfo.find(deepLinkKey);
    return link == response.userInfo.end() ? std::nullopt : platform::URL::fromString(link->second);
}

} // namespace

NotificationCenterBridge& NotificationCenterBridge::shared()
{
    return platform::Platform::current().shared<NotificationCenterBridge>();
}

NotificationCenterBridge::NotificationCenterBridge()
{
    UNUserNotificationCenter::currentNotificationCenter().setDelegate(this);
}

void NotificationCenterBridge::ensureAuthorized(
    const platform::UNNotificationSettings& settings, std::function<void(bool mayPost)> completion)
{
    const auto status = settings.authorizationStatus;
    if (status == UNAuthorizationStatus::authorized || status == UNAuthorizationStatus::provisional)
        return completion(true);
    if (status != UNAuthorizationStatus::notDetermined || authRequested_)
        return completion(false);
    authRequested_ = true;
    UNUserNotificationCenter::currentNotificationCenter().requestAuthorization(options,
        [completion = std::move(completion)](bool granted, const auto&) { completion(granted); });
}

void NotificationCenterBridge::post(const std::string& title, const std::string& body,
    const std::optional<std::string>& deepLink, const std::string& identifier)
{
    platform::UNNotificationRequest request{
        .identifier = identifier,
        .content =
            {
                .title = title,
                .body = body,
                .sound = platform::UNNotificationSound::defaultSound,
            },
    };
    if (deepLink && !deepLink->empty())
        request.content.userInfo[deepLinkKey] = *deepLink;

    const auto add = [request](bool mayPost) {
        if (!mayPost)
            return;
        UNUserNotificationCenter::currentNotificationCenter().add(request, [](const auto& error) {
            if (error)
                platform::NSLog("Velmaro notify post failed: " + error->localizedDescription);
        });
    };
    UNUserNotificationCenter::currentNotificationCenter().getNotificationSettings(
        [add](const auto& settings) { shared().ensureAuthorized(settings, add); });
}

void NotificationCenterBridge::userNotificationCenterWillPresentNotification(
    UNUserNotificationCenter&, const platform::UNNotificationRequest&,
    const std::function<void(platform::UNNotificationPresentationOptions)>& completionHandler)
{
    completionHandler(foregroundPresentation);
}

void NotificationCenterBridge::userNotificationCenterDidReceiveNotificationResponse(
    UNUserNotificationCenter&, const platform::UNNotificationResponse& response,
    const std::function<void()>& completionHandler)
{
    const auto link = deepLinkOf(response);
    completionHandler();
    platform::DispatchQueue::main().async([link] {
        comeForward();
        if (link)
            platform::NSWorkspace::shared().open(*link);
    });
}

} // namespace velmaro
