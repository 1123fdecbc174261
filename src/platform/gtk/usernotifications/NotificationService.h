#pragma once

#include "platform/foundation/NSError.h"
#include "platform/usernotifications/UNNotificationRequest.h"

#include <functional>
#include <optional>
#include <string>

namespace gtk {

// A service that shows notifications on this desktop.
class NotificationService {
public:
    using Completion = std::function<void(const std::optional<platform::NSError>& error)>;

    virtual ~NotificationService() = default;

    // Shows a notification, or changes the one with its identifier. `completion` is called later,
    // once, unless this is gone by then.
    virtual void post(const platform::UNNotificationRequest& request, Completion completion) = 0;
};

// Makes a text fit for the message bus and the desktop: it removes NUL characters, and cuts the
// text after some thousand bytes, since nobody would see the rest.
std::string notificationText(std::string text);

// Does the same for services that read markup, and escapes the text.
std::string notificationMarkup(std::string text);

} // namespace gtk
