#pragma once

#include "platform/gtk/usernotifications/NotificationService.h"

#include <cstdint>
#include <deque>
#include <giomm/dbusconnection.h>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace gtk {

// The notification service of the session bus, as programs outside a sandbox reach it. It knows
// notifications by numbers of its own and tells of clicks for as long as this program runs.
class DesktopNotifications final : public NotificationService {
public:
    using UserInfo = std::map<std::string, std::string>;

    // Called when the user clicks a notification, with what lets a window come forward; empty where
    // the desktop needs nothing for that.
    using ClickHandler =
        std::function<void(const UserInfo& userInfo, const std::string& activationToken)>;

    // `application` is the name of the desktop entry.
    DesktopNotifications(std::string application, ClickHandler onClick);
    ~DesktopNotifications() override;

    void post(const platform::UNNotificationRequest& request, Completion completion) override;

private:
    using Arguments = Glib::VariantContainerBase;
    using Result = std::function<void(const Arguments&)>;

    struct Job {
        platform::UNNotificationRequest request;
        Completion completion;
    };
    struct Shown {
        std::string identifier;
        UserInfo userInfo;
        std::string activationToken; // for the click that follows
    };

    void connect();
    void listen();
    void start();
    void askForCapabilities();
    void notify();
    void call(const char* method, const Arguments& arguments, const char* resultType, Result then);
    void finish(const std::optional<platform::NSError>& error);
    void remember(std::uint32_t number, const platform::UNNotificationRequest& request);
    void forget(std::uint32_t number);
    void hear(const std::string& signal, const Arguments& values);
    Arguments notifyArguments(const platform::UNNotificationRequest& request) const;

    const std::string application_;
    const ClickHandler onClick_;
    Glib::RefPtr<Gio::Cancellable> cancellable_;
    Glib::RefPtr<Gio::DBus::Connection> connection_; // null before the first notification
    std::vector<unsigned> subscriptions_;
    std::deque<Job> jobs_; // the first is under way: a replacement must know the number it replaces
    std::optional<bool> readsMarkup_; // absent until the service has told
    std::map<std::uint32_t, Shown> shown_;
    std::map<std::string, std::uint32_t> numbers_; // by identifier
    std::shared_ptr<void> life_ = std::make_shared<char>();
};

} // namespace gtk
