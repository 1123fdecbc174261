#include "platform/gtk/usernotifications/GtkUserNotificationCenter.h"

#include "platform/appkit/NSApplication.h"
#include "platform/usernotifications/UNUserNotificationCenterDelegate.h"

#include <utility>

namespace gtk {

using platform::NSError;
using platform::UNAuthorizationStatus;

void GtkUserNotificationCenter::askUser(std::function<void(bool isAllowed)> answer)
{
    Permission::ask("Allow Velmaro Online to show notifications?", explanation, std::move(answer));
}

GtkUserNotificationCenter::GtkUserNotificationCenter(platform::DispatchQueue& queue,
    std::unique_ptr<Permission> permission, std::unique_ptr<NotificationService> service)
    : queue_(queue)
    , permission_(std::move(permission))
    , service_(std::move(service))
{
    if (permission_)
        decisions_ = permission_->observe([this] { tellDecision(); });
}

void GtkUserNotificationCenter::setDelegate(platform::UNUserNotificationCenterDelegate* delegate)
{
    delegate_ = delegate;
    deliverClicks();
}

std::optional<bool> GtkUserNotificationCenter::isAllowed() const
{
    return permission_ ? permission_->isAllowed() : true;
}

void GtkUserNotificationCenter::getNotificationSettings(
    std::function<void(const platform::UNNotificationSettings&)> completion)
{
    queue_.async([this, completion = std::move(completion)] {
        const auto decision = isAllowed();
        completion({!decision ? UNAuthorizationStatus::notDetermined
                : *decision   ? UNAuthorizationStatus::authorized
                              : UNAuthorizationStatus::denied});
    });
}

void GtkUserNotificationCenter::requestAuthorization(platform::UNAuthorizationOptions,
    std::function<void(bool granted, const std::optional<NSError>&)> completion)
{
    waiting_.push_back(std::move(completion));
    if (isAllowed())
        queue_.async([this] { tellDecision(); });
    else
        permission_->request();
}

void GtkUserNotificationCenter::tellDecision()
{
    for (auto waiting = std::exchange(waiting_, {}); auto& completion : waiting)
        completion(*isAllowed(), std::nullopt);
}

void GtkUserNotificationCenter::add(const platform::UNNotificationRequest& request,
    std::function<void(const std::optional<NSError>&)> completion)
{
    const bool isInFront = platform::NSApplication::shared().keyWindow() != nullptr;
    if (!isInFront)
        return service_->post(request, std::move(completion));

    const auto present = [&](platform::UNNotificationPresentationOptions options) {
        auto presented = request;
        if (!(options & platform::unNotificationPresentationOptionSound))
            presented.content.sound.reset();
        if (options & platform::unNotificationPresentationOptionBanner)
            service_->post(presented, completion);
        else
            queue_.async([completion] { completion({}); });
    };
    if (delegate_)
        delegate_->userNotificationCenterWillPresentNotification(*this, request, present);
    else
        present({});
}

void GtkUserNotificationCenter::receiveClick(const std::map<std::string, std::string>& userInfo)
{
    clicks_.push_back({userInfo});
    deliverClicks();
}

void GtkUserNotificationCenter::deliverClicks()
{
    while (delegate_ && !clicks_.empty()) {
        const auto click = std::move(clicks_.front());
        clicks_.pop_front();
        delegate_->userNotificationCenterDidReceiveNotificationResponse(*this, click, [] {});
    }
}

} // namespace gtk
