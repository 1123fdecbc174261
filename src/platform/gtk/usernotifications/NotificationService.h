#pragma once

#include "platform/foundation/NSError.h"
#include "platform/usernotifications/UNNotificationRequest.h"

#include <functional>
#include <optional>

namespace gtk {

// What shows notifications on this desktop.
class NotificationService {
public:
    using Completion = std::function<void(const std::optional<platform::NSError>& error)>;

    virtual ~NotificationService() = default;

    // Shows a notification, or changes the one with its identifier. `completion` is called later,
    // once, unless this is gone by then.
    virtual void post(const platform::UNNotificationRequest& request, Completion completion) = 0;
};

} // namespace gtk
