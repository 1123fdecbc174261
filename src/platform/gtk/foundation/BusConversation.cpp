#include "platform/gtk/foundation/BusConversation.h"

#include <cmath>
#include <giomm/init.h>

namespace gtk {

namespace {

using Gio::DBus::Connection;

constexpr auto busName = "org.freedesktop.DBus";

int milliseconds(double seconds)
{
    return static_cast<int>(std::ceil(seconds * 1000));
}

} // namespace

BusFailure busFailure(const Glib::Error& error)
{
    const auto is = [&](GQuark domain, int code) { return error.matches(domain, code); };
    if (is(G_DBUS_ERROR, G_DBUS_ERROR_ACCESS_DENIED) || is(G_DBUS_ERROR, G_DBUS_ERROR_AUTH_FAILED))
        return BusFailure::refused;
    if (is(G_DBUS_ERROR, G_DBUS_ERROR_SERVICE_UNKNOWN)
        || is(G_DBUS_ERROR, G_DBUS_ERROR_NAME_HAS_NO_OWNER))
        return BusFailure::noService;
    if (is(G_IO_ERROR, G_IO_ERROR_TIMED_OUT) || is(G_DBUS_ERROR, G_DBUS_ERROR_NO_REPLY)
        || is(G_DBUS_ERROR, G_DBUS_ERROR_TIMED_OUT))
        return BusFailure::noAnswer;
    const bool comesFromService =
        error.domain() == G_DBUS_ERROR || is(G_IO_ERROR, G_IO_ERROR_DBUS_ERROR);
    return comesFromService ? BusFailure::other : BusFailure::noBus;
}

std::string busFailureText(const Glib::Error& error)
{
    g_autoptr(GError) copy = g_error_copy(error.gobj());
    g_dbus_error_strip_remote_error(copy);
    return copy->message;
}

BusValues BusConversation::ask(Gio::DBus::BusType bus, const std::string& service, const Call& call)
{
    Gio::init(); // which nobody has done where no toolkit runs
    const auto& method = call.method;
    return Connection::get_sync(bus)->call_sync(method.path, method.interface, method.name,
        call.arguments, service, milliseconds(call.patience), Gio::DBus::CallFlags::NONE,
        Glib::VariantType(call.resultType));
}

BusConversation::BusConversation(
    Gio::DBus::BusType bus, std::string service, FailureHandler onFailure)
    : bus_(bus)
    , service_(std::move(service))
    , onFailure_(std::move(onFailure))
{
}

BusConversation::~BusConversation()
{
    for (const auto subscription : subscriptions_)
        connection_->signal_unsubscribe(subscription);
}

void BusConversation::open(std::function<void()> then)
{
    open(std::move(then), onFailure_);
}

void BusConversation::open(std::function<void()> then, FailureHandler onFailure)
{
    const auto finish = [this, then = std::move(then), onFailure = std::move(onFailure)](
                            const Glib::RefPtr<Gio::AsyncResult>& result) {
        try {
            connection_ = Connection::get_finish(result);
        } catch (const Glib::Error& error) {
            if (onFailure)
                onFailure(error);
            return;
        }
        then();
    };
    Connection::get(bus_, lifetime_.guard(finish));
}

void BusConversation::call(const Call& call, Handler then)
{
    const auto onFailure = call.onFailure ? call.onFailure : onFailure_;
    if (!connection_)
        return open([this, call, then = std::move(then)] { this->call(call, then); }, onFailure);

    const auto finish = [connection = connection_, then = std::move(then), onFailure](
                            const Glib::RefPtr<Gio::AsyncResult>& result) {
        BusValues results;
        try {
            results = connection->call_finish(result);
        } catch (const Glib::Error& error) {
            if (onFailure)
                onFailure(error);
            return;
        }
        if (then)
            then(results);
    };
    const auto& method = call.method;
    connection_->call(method.path, method.interface, method.name, call.arguments,
        lifetime_.guard(finish), call.files, service_, milliseconds(call.patience),
        Gio::DBus::CallFlags::NONE, Glib::VariantType(call.resultType));
}

void BusConversation::tell(const Method& method, const BusValues& arguments)
{
    connection_->call(method.path, method.interface, method.name, arguments, {}, service_);
}

void BusConversation::listen(const Method& signal, const char* type, Handler handler)
{
    const auto receive = [type = Glib::VariantType(type), handler = std::move(handler)](const auto&,
                             const auto&, const auto&, const auto&, const auto&,
                             const BusValues& values) {
        if (!values.is_of_type(type))
            return;
        const auto kept = handler; // may end this subscription
        kept(values);
    };
    subscriptions_.push_back(connection_->signal_subscribe(
        receive, service_, signal.interface, signal.name, signal.path));
}

void BusConversation::listenForOwner(std::function<void()> handler)
{
    const auto receive = [handler = std::move(handler)](const auto&, const auto&, const auto&,
                             const auto&, const auto&, const auto&) {
        const auto kept = handler;
        kept();
    };
    subscriptions_.push_back(
        connection_->signal_subscribe(receive, busName, busName, "NameOwnerChanged", {}, service_));
}

} // namespace gtk
