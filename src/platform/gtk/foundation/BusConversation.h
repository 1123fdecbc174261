#pragma once

#include <functional>
#include <giomm/dbusconnection.h>
#include <memory>
#include <string>
#include <vector>

namespace gtk {

// What an application and one service on a message bus say to each other. Nothing waits; each call
// has a limit of time. Once this is gone nothing more is heard, and a service that was busy
// answering is not waited for.
class BusConversation {
public:
    struct Method {
        std::string path;
        std::string interface;
        std::string name;
    };
    using Arguments = Glib::VariantContainerBase;
    using Handler = std::function<void(const Arguments&)>;
    using FailureHandler = std::function<void(const Glib::Error&)>;

    // The object path among values of a message.
    static std::string pathIn(const Arguments& values, unsigned index);

    // `service` is the name it is known by on the bus. `onFailure` is told when the bus or a call
    // fails; it may destroy this, as may every other handler.
    BusConversation(std::string service, FailureHandler onFailure);
    ~BusConversation();

    BusConversation(const BusConversation&) = delete;
    BusConversation& operator=(const BusConversation&) = delete;

    // To come first, once: everything below needs the bus.
    void open(Gio::DBus::BusType bus, std::function<void()> then);

    // The name that the bus knows this program by, such as ":1.42".
    std::string ownName() const { return connection_->get_unique_name(); }

    // Calls a method whose results are of `resultType`, and then `then`.
    void call(const Method& method, const Arguments& arguments, const char* resultType,
        double secondsToWait, Handler then);

    // Calls a method whose results nobody needs. It is heard even when this is gone by then.
    void tell(const Method& method, const Arguments& arguments);

    // Calls `handler` for each signal of that name with values of `type`; from any object when the
    // path is empty.
    void listen(const Method& signal, const char* type, Handler handler);

private:
    std::string service_;
    FailureHandler onFailure_;
    Glib::RefPtr<Gio::DBus::Connection> connection_;
    Glib::RefPtr<Gio::Cancellable> cancellable_;
    std::vector<unsigned> subscriptions_;
    std::shared_ptr<void> life_ = std::make_shared<char>();
};

} // namespace gtk
