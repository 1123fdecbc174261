#pragma once

#include "platform/foundation/DispatchQueue.h"
#include "platform/simulated/Faults.h"
#include "platform/usernotifications/UNUserNotificationCenter.h"
#include "platform/usernotifications/UNUserNotificationCenterDelegate.h"

#include <deque>
#include <vector>

namespace simulated {

// A desktop whose user, who has not been asked yet, is the test.
class SimulatedNotificationCenter final : public platform::UNUserNotificationCenter {
public:
    // All completions are called from tasks of `queue`.
    SimulatedNotificationCenter(platform::DispatchQueue& queue, Faults& faults)
        : queue_(queue)
        , faults_(faults)
    {
    }

    void setDelegate(platform::UNUserNotificationCenterDelegate* delegate) override;
    void getNotificationSettings(
        std::function<void(const platform::UNNotificationSettings&)> completion) override;
    void requestAuthorization(platform::UNAuthorizationOptions options,
        std::function<void(bool granted, const std::optional<platform::NSError>&)> completion)
        override;
    void add(const platform::UNNotificationRequest& request,
        std::function<void(const std::optional<platform::NSError>&)> completion) override;

    // The user answers the oldest question that waits; fails the test when no question waits.
    void simulateAnswer(bool granted);

    // The user clicks a notification; fails the test when there is no delegate.
    void simulateClick(const platform::UNNotificationRequest& notification);

    // How a notification would show in front.
    platform::UNNotificationPresentationOptions presentationOf(
        const platform::UNNotificationRequest& notification);

    bool hasDelegate() const { return delegate_; }

    platform::UNAuthorizationStatus status = platform::UNAuthorizationStatus::notDetermined;
    std::optional<platform::NSError> postError; // of all that is added from now on
    std::vector<platform::UNAuthorizationOptions> questions; // all that were ever asked
    std::vector<platform::UNNotificationRequest> shown;
    int finishedClicks = 0; // whose completion handler was called

private:
    platform::DispatchQueue& queue_;
    Faults& faults_;
    platform::UNUserNotificationCenterDelegate* delegate_ = nullptr;
    std::deque<std::function<void(bool granted, const std::optional<platform::NSError>&)>> waiting_;
};

} // namespace simulated
