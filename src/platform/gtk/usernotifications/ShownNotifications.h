#pragma once

#include "platform/gtk/foundation/BusConversation.h"

#include <cstdint>

namespace gtk {

// The notifications that the desktop's service shows for this program, which it gives numbers, and
// the clicks on them.
class ShownNotifications {
public:
    static constexpr auto serviceName = "org.freedesktop.Notifications";
    static constexpr auto servicePath = "/org/freedesktop/Notifications";

    // The name of the action that a click anywhere on a notification invokes.
    static constexpr auto clickAction = "default";

    // The type of `serialized`.
    static constexpr auto serializedType = "(ba{ua{ss}})";

    using UserInfo = std::map<std::string, std::string>;

    // Called when the user clicks a notification, with the activation token; empty if there is
    // none.
    using ClickHandler =
        std::function<void(const UserInfo& userInfo, const std::string& activationToken)>;

    explicit ShownNotifications(ClickHandler onClick);

    ShownNotifications(const ShownNotifications&) = delete;
    ShownNotifications& operator=(const ShownNotifications&) = delete;

    // Starts to listen for clicks. To be called once, with a conversation that is open; this must
    // outlive it.
    void listen(BusConversation& service);

    // Tells whether a notification that has left the screen by itself can still be clicked, as on
    // desktops that keep a list of them. Until this is called it cannot.
    void setKeepsExpired(bool keepsExpired) { keepsExpired_ = keepsExpired; }

    void add(std::uint32_t number, const std::string& identifier, const UserInfo& userInfo);

    // The number of the notification with that identifier; 0 when it is not shown.
    std::uint32_t number(const std::string& identifier) const;

    bool isEmpty() const { return shown_.empty(); }

    // Sets what is called when the service has told that the last notification is gone.
    void whenEmpty(std::function<void()> handler) { empty_ = std::move(handler); }

    void clear();

    // Carries the notifications, without their identifiers, over to another process, which will
    // listen for clicks on them.
    BusValues serialized() const;
    void add(const BusValues& serialized);

private:
    struct Notification {
        std::string identifier;
        UserInfo userInfo;
        std::string activationToken; // comes before the click that it is for
    };

    Notification* find(std::uint32_t number);
    void hearOfEnd(std::uint32_t number, std::uint32_t reason);
    void forget(std::uint32_t number);

    const ClickHandler onClick_;
    std::function<void()> empty_ = [] {};
    bool keepsExpired_ = false;
    std::map<std::uint32_t, Notification> shown_;
    std::map<std::string, std::uint32_t> numbers_; // by identifier
};

} // namespace gtk
