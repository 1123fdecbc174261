#pragma once

#include "platform/gtk/foundation/BusConversation.h"
#include "platform/gtk/usernotifications/NotificationService.h"

namespace gtk {

// Shows notifications through the desktop's portal, which programs inside a sandbox can reach. The
// portal remembers the action that a click is to activate, and starts this program for it.
class PortalNotifications final : public NotificationService {
public:
    // `clickAction` is an action of the application with a dictionary of texts as its target.
    explicit PortalNotifications(std::string clickAction);

    void post(const platform::UNNotificationRequest& request, Completion completion) override;

private:
    const std::string clickAction_;
    BusConversation portal_;
};

} // namespace gtk
