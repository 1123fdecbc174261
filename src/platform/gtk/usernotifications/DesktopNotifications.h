#pragma once

#include "platform/gtk/usernotifications/NotificationService.h"
#include "platform/gtk/usernotifications/ShownNotifications.h"

#include <deque>

namespace gtk {

// Shows notifications through the service of the session bus, which programs outside a sandbox can
// reach. The service reports clicks only to programs that listen: when this program ends while
// notifications are shown, `velmaro-notification-agent` takes its place until the last is gone.
class DesktopNotifications final : public NotificationService {
public:
    // `application` is the name of the desktop entry.
    DesktopNotifications(std::string application, ShownNotifications::ClickHandler onClick);

    void post(const platform::UNNotificationRequest& request, Completion completion) override;

    // To be called when this program is about to end. A click on a notification that is still shown
    // will start it again.
    void leaveToAgent() const;

private:
    struct Job {
        platform::UNNotificationRequest request;
        Completion completion;
    };

    void start();
    void listen();
    void askForCapabilities();
    void notify();
    void finish(const std::optional<platform::NSError>& error);
    BusValues notifyArguments(const platform::UNNotificationRequest& request) const;

    const std::string application_;
    // The first is under way. The others wait for it, since a replacement must name the number that
    // it replaces.
    std::deque<Job> jobs_;
    std::optional<bool> readsMarkup_; // absent until the service has told
    ShownNotifications shown_;
    BusConversation service_;
};

} // namespace gtk
