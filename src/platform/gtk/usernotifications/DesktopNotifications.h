#pragma once

#include "platform/gtk/usernotifications/NotificationService.h"
#include "platform/gtk/usernotifications/ShownNotifications.h"

#include <deque>
#include <memory>

namespace gtk {

// The notification service of the session bus, as programs outside a sandbox reach it. It tells of
// clicks for as long as somebody listens: when this program ends while notifications are shown,
// `velmaro-notification-agent` takes its place until the last of them is gone.
class DesktopNotifications final : public NotificationService {
public:
    // `application` is the name of the desktop entry.
    DesktopNotifications(std::string application, ShownNotifications::ClickHandler onClick);
    ~DesktopNotifications() override;

    void post(const platform::UNNotificationRequest& request, Completion completion) override;

    // This program is about to end. A click on a notification that is still shown then starts it.
    void leaveToAgent() const;

private:
    using Arguments = Glib::VariantContainerBase;
    using Result = std::function<void(const Arguments&)>;

    struct Job {
        platform::UNNotificationRequest request;
        Completion completion;
    };

    void connect();
    void listen();
    void start();
    void askForCapabilities();
    void notify();
    void call(const char* method, const Arguments& arguments, const char* resultType, Result then);
    void finish(const std::optional<platform::NSError>& error);
    Arguments notifyArguments(const platform::UNNotificationRequest& request) const;

    const std::string application_;
    Glib::RefPtr<Gio::Cancellable> cancellable_;
    Glib::RefPtr<Gio::DBus::Connection> connection_; // null before the first notification
    unsigned subscription_ = 0;
    std::deque<Job> jobs_; // the first is under way: a replacement must know the number it replaces
    std::optional<bool> readsMarkup_; // absent until the service has told
    ShownNotifications shown_;
    std::shared_ptr<void> life_ = std::make_shared<char>();
};

} // namespace gtk
