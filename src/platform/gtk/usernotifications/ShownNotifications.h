#pragma once

#include <cstdint>
#include <functional>
#include <giomm/dbusconnection.h>
#include <map>
#include <string>

namespace gtk {

// The notifications that the desktop's service shows for this program, under numbers of its own,
// and the clicks on them.
class ShownNotifications {
public:
    static constexpr auto serviceName = "org.freedesktop.Notifications";
    static constexpr auto servicePath = "/org/freedesktop/Notifications";

    // The action of a notification that a click anywhere on it stands for.
    static constexpr auto clickAction = "default";

    // How `serialized` is written.
    static constexpr auto serializedType = "(ba{ua{ss}})";

    using UserInfo = std::map<std::string, std::string>;

    // Called when the user clicks a notification, with what lets a window come forward; empty where
    // the desktop needs nothing for that.
    using ClickHandler =
        std::function<void(const UserInfo& userInfo, const std::string& activationToken)>;

    explicit ShownNotifications(ClickHandler onClick);
    ~ShownNotifications();

    ShownNotifications(const ShownNotifications&) = delete;
    ShownNotifications& operator=(const ShownNotifications&) = delete;

    // Hears of clicks from now on. To be called once.
    void listen(const Glib::RefPtr<Gio::DBus::Connection>& connection);

    // Whether a notification that has left the screen by itself may still be clicked: some desktops
    // keep a list of them. Not before this is called.
    void setKeepsExpired(bool keepsExpired) { keepsExpired_ = keepsExpired; }

    void add(std::uint32_t number, const std::string& identifier, const UserInfo& userInfo);

    // The number of the one with that identifier; 0 when none is shown.
    std::uint32_t number(const std::string& identifier) const;

    bool isEmpty() const { return shown_.empty(); }

    // Called when the service has told that the last one is gone.
    void whenEmpty(std::function<void()> handler) { empty_ = std::move(handler); }

    void clear();

    // All of them but their identifiers, for another process to hear the clicks on them.
    Glib::VariantContainerBase serialized() const;
    void add(const Glib::VariantContainerBase& serialized);

private:
    struct Notification {
        std::string identifier;
        UserInfo userInfo;
        std::string activationToken; // for the click that follows
    };

    void hear(const std::string& signal, const Glib::VariantContainerBase& values);
    void forget(std::uint32_t number);

    const ClickHandler onClick_;
    std::function<void()> empty_ = [] {};
    Glib::RefPtr<Gio::DBus::Connection> connection_; // null before it listens
    unsigned subscription_ = 0;
    bool keepsExpired_ = false;
    std::map<std::uint32_t, Notification> shown_;
    std::map<std::string, std::uint32_t> numbers_; // by identifier
};

} // namespace gtk
