#include "platform/simulated/SimulatedNotificationCenter.h"

#include "platform/simulated/Failure.h"

namespace simulated {

using platform::NSError;
using platform::UNAuthorizationStatus;

void SimulatedNotificationCenter::setDelegate(platform::UNUserNotificationCenterDelegate* delegate)
{
    delegate_ = delegate;
}

void SimulatedNotificationCenter::getNotificationSettings(
    std::function<void(const platform::UNNotificationSettings&)> completion)
{
    queue_.async([this, completion = std::move(completion)] { completion({status}); });
}

void SimulatedNotificationCenter::requestAuthorization(platform::UNAuthorizationOptions options,
    std::function<void(bool granted, const std::optional<NSError>&)> completion)
{
    questions.push_back(options);
    waiting_.push_back(std::move(completion));
}

void SimulatedNotificationCenter::add(const platform::UNNotificationRequest& request,
    std::function<void(const std::optional<NSError>&)> completion)
{
    const auto error =
        faults_.strike() ? std::optional(NSError{"The service has gone"}) : postError;
    if (!error)
        shown.push_back(request);
    queue_.async([completion = std::move(completion), error] { completion(error); });
}

void SimulatedNotificationCenter::simulateAnswer(bool granted)
{
    if (waiting_.empty())
        return fail("the user was not asked about notifications");
    status = granted ? UNAuthorizationStatus::authorized : UNAuthorizationStatus::denied;
    queue_.async([completion = std::move(waiting_.front()), granted] { completion(granted, {}); });
    waiting_.pop_front();
}

void SimulatedNotificationCenter::simulateClick(const platform::UNNotificationRequest& notification)
{
    if (!delegate_)
        return fail("nobody listens to the notification center");
    delegate_->userNotificationCenterDidReceiveNotificationResponse(
        *this, {notification.content.userInfo}, [this] { ++finishedClicks; });
}

platform::UNNotificationPresentationOptions SimulatedNotificationCenter::presentationOf(
    const platform::UNNotificationRequest& notification)
{
    platform::UNNotificationPresentationOptions presentation = 0;
    if (delegate_) {
        delegate_->userNotificationCenterWillPresentNotification(
            *this, notification, [&](auto options) { presentation = options; });
    }
    return presentation;
}

} // namespace simulated
