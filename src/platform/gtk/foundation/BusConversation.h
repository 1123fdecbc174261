#pragma once

#include "platform/foundation/Lifetime.h"

#include <functional>
#include <giomm/dbusconnection.h>
#include <giomm/unixfdlist.h>
#include <map>
#include <string>
#include <vector>

namespace gtk {

// The values that one message on a bus carries, in order.
using BusValues = Glib::VariantContainerBase;

// What such values are made of, beside Glib::ustring, numbers, vectors and maps.
using BusPath = Glib::DBusObjectPathString;
using BusDictionary = std::map<Glib::ustring, Glib::VariantBase>;

// A value of a message. A Glib::VariantBase is sent together with its type ("v").
inline Glib::VariantBase busValue(const char* text)
{
    return Glib::Variant<Glib::ustring>::create(text);
}
inline Glib::VariantBase busValue(const std::string& text)
{
    return busValue(text.c_str());
}
template <class T> Glib::VariantBase busValue(const T& value)
{
    return Glib::Variant<T>::create(value);
}

// The values of a message, made by `busValue`.
template <class... T> BusValues busValues(const T&... values)
{
    return BusValues::create_tuple(std::vector<Glib::VariantBase>{busValue(values)...});
}

// The value at `index`, which must be a T. Conversations deliver only values of the types that
// their callers have named.
template <class T> T child(const BusValues& values, unsigned index)
{
    Glib::Variant<T> value;
    values.get_child(value, index);
    return value.get();
}

// Why a service has not done what it was asked for.
enum class BusFailure {
    refused, // by the service or by the bus, for lack of a permission
    noBus, // or the connection to it has broken
    noService,
    noAnswer, // in time
    other, // the service has failed in a way of its own
};

BusFailure busFailure(const Glib::Error& error);

// What the service or the bus says about its failure, without the bus's name for it.
std::string busFailureText(const Glib::Error& error);

// What an application and one service on a message bus say to each other. Only `ask` waits; each
// call has a limit of time. Once this is gone no handler is called any more. Main thread only.
class BusConversation {
public:
    // A method or a signal of an object.
    struct Method {
        std::string path;
        std::string interface;
        std::string name;
    };
    using Handler = std::function<void(const BusValues&)>;
    using FailureHandler = std::function<void(const Glib::Error&)>;

    // What is asked of a service.
    struct Call {
        Method method;
        BusValues arguments = {};
        const char* resultType = "()";
        double patience = 10; // seconds until the service must have answered
        FailureHandler onFailure = {}; // absent: the conversation's
        Glib::RefPtr<Gio::UnixFDList> files = {}; // open files that the arguments refer to
    };

    // Asks a service and waits for its answer, in a program that has nothing else to do. Throws a
    // Glib::Error when there is no answer; neither `onFailure` nor `files` is used.
    static BusValues ask(Gio::DBus::BusType bus, const std::string& service, const Call& call);

    // `service` is the name it is known by on `bus`. `onFailure`, where present, is called when the
    // bus or a call fails; it may destroy this, as may every other handler.
    BusConversation(Gio::DBus::BusType bus, std::string service, FailureHandler onFailure = {});
    ~BusConversation();

    BusConversation(const BusConversation&) = delete;
    BusConversation& operator=(const BusConversation&) = delete;

    // Connects to the bus, and then calls `then`. The bus must be open for everything below except
    // `call`, which opens it.
    void open(std::function<void()> then);
    bool isOpen() const { return static_cast<bool>(connection_); }

    // The name that the bus knows this program by, such as ":1.42".
    std::string ownName() const { return connection_->get_unique_name(); }

    // Calls a method, and then `then` with its results.
    void call(const Call& call, Handler then = {});

    // Calls a method whose results nobody needs. It is heard even when this is gone by then.
    void tell(const Method& method, const BusValues& arguments);

    // Calls `handler` for each signal of that name with values of `type`; from any object when the
    // path is empty.
    void listen(const Method& signal, const char* type, Handler handler);

    // Calls `handler` when another program becomes the service, or the service is gone.
    void listenForOwner(std::function<void()> handler);

private:
    void open(std::function<void()> then, FailureHandler onFailure);

    const Gio::DBus::BusType bus_;
    const std::string service_;
    const FailureHandler onFailure_;
    Glib::RefPtr<Gio::DBus::Connection> connection_; // null until the bus is open
    std::vector<unsigned> subscriptions_;
    platform::Lifetime lifetime_;
};

} // namespace gtk
