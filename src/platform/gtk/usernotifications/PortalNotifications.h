#pragma once

#include "platform/gtk/usernotifications/NotificationService.h"

#include <giomm/dbusconnection.h>
#include <memory>
#include <string>

namespace gtk {

// The portal for notifications, as programs inside a sandbox reach it. It keeps what a click is to
// do and activates that action of this program, which it starts first if need be.
class PortalNotifications final : public NotificationService {
public:
    // `clickAction` is an action of the application with a dictionary of texts as its target.
    explicit PortalNotifications(std::string clickAction);
    ~PortalNotifications() override;

    void post(const platform::UNNotificationRequest& request, Completion completion) override;

private:
    const std::string clickAction_;
    Glib::RefPtr<Gio::Cancellable> cancellable_;
    std::shared_ptr<void> life_ = std::make_shared<char>();
};

} // namespace gtk
