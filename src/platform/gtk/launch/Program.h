#pragma once

#include <functional>
#include <gtkmm/window.h>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace gtk {

// The toolkit's own application object, of which one runs for each user: a later start finds it on
// the session bus, hands over what it was asked for and ends. Without a session bus every start is
// the first.
class Program {
public:
    // The application's action behind its notifications, whose target is what they carry. Services
    // activate it over the bus, and start the program for it if need be.
    static constexpr auto notificationAction = "notification";
    using UserInfo = std::map<std::string, std::string>;

    struct Handlers {
        // The display is open. May return a reason why the program cannot run. With one, and where
        // there is no display to open, the program says so in one line and exits with status 1.
        std::function<std::optional<std::string>()> startup;

        std::function<void()> activate;

        // Addresses as their senders wrote them.
        std::function<void(const std::vector<std::string>& addresses)> open;

        // The user has clicked a notification, and a service other than the one of this run says
        // so. The program may have been started for it alone: neither of the above is called then.
        std::function<void(const UserInfo&)> notificationClicked;

        // The main loop has ended.
        std::function<void()> shutdown;
    };

    // Starts nothing: a later start needs neither a display nor much time.
    Program(std::string identifier, Handlers handlers);
    ~Program();

    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // Runs the main loop, or hands `address` to the program that runs already. All handlers are
    // called from inside. Returns the exit status.
    int run(std::optional<std::string> address);

    // Adds an action of the application, for `run` to export. The desktop activates it by its name,
    // and starts the program for it if need be: neither `activate` nor `open` is called then.
    void addAction(const std::string& name, std::function<void()> activated);

    // Ends the main loop.
    void quit();

    // From now on the program lives on without a window.
    void hold();

    void add(Gtk::Window& window);

    GtkApplication* native() { return object_; }

    // The one used last comes first.
    std::vector<GtkWindow*> windows() const;

    const Handlers& handlers() const { return handlers_; }

private:
    std::string identifier_;
    Handlers handlers_;
    GtkApplication* object_;
    std::map<std::string, std::function<void()>> actions_;
};

} // namespace gtk
