#include "platform/gtk/foundation/BusConversation.h"

#include <cmath>

namespace gtk {

std::string BusConversation::pathIn(const Arguments& values, unsigned index)
{
    Glib::Variant<Glib::DBusObjectPathString> path;
    values.get_child(path, index);
    return path.get();
}

BusConversation::BusConversation(std::string service, FailureHandler onFailure)
    : service_(std::move(service))
    , onFailure_(std::move(onFailure))
    , cancellable_(Gio::Cancellable::create())
{
}

BusConversation::~BusConversation()
{
    cancellable_->cancel();
    for (const auto subscription : subscriptions_)
        connection_->signal_unsubscribe(subscription);
}

void BusConversation::open(Gio::DBus::BusType bus, std::function<void()> then)
{
    const auto finish = [this, life = std::weak_ptr(life_), then = std::move(then)](
                            const Glib::RefPtr<Gio::AsyncResult>& result) {
        if (life.expired())
            return;
        try {
            connection_ = Gio::DBus::Connection::get_finish(result);
        } catch (const Glib::Error& error) {
            const auto onFailure = onFailure_; // may destroy this
            return onFailure(error);
        }
        const auto kept = then;
        kept();
    };
    Gio::DBus::Connection::get(
        bus, [finish](Glib::RefPtr<Gio::AsyncResult>& result) { finish(result); }, cancellable_);
}

void BusConversation::call(const Method& method, const Arguments& arguments, const char* resultType,
    double secondsToWait, Handler then)
{
    const auto finish = [this, life = std::weak_ptr(life_), then = std::move(then)](
                            Glib::RefPtr<Gio::AsyncResult>& result) {
        if (life.expired())
            return;
        Arguments results;
        try {
            results = connection_->call_finish(result);
        } catch (const Glib::Error& error) {
            const auto onFailure = onFailure_;
            return onFailure(error);
        }
        const auto kept = then;
        kept(results);
    };
    connection_->call(method.path, method.interface, method.name, arguments, finish, cancellable_,
        service_, static_cast<int>(std::ceil(secondsToWait * 1000)), Gio::DBus::CallFlags::NONE,
        Glib::VariantType(resultType));
}

void BusConversation::tell(const Method& method, const Arguments& arguments)
{
    connection_->call(method.path, method.interface, method.name, arguments, {}, service_);
}

void BusConversation::listen(const Method& signal, const char* type, Handler handler)
{
    const auto receive = [type = Glib::VariantType(type), handler = std::move(handler)](
                             const Glib::RefPtr<Gio::DBus::Connection>&, const Glib::ustring&,
                             const Glib::ustring&, const Glib::ustring&, const Glib::ustring&,
                             const Arguments& values) {
        if (!values.is_of_type(type))
            return;
        const auto kept = handler; // may end this subscription
        kept(values);
    };
    subscriptions_.push_back(connection_->signal_subscribe(
        receive, service_, signal.interface, signal.name, signal.path));
}

} // namespace gtk
