#include "FakeService.h"

#include "Process.h"

#include <algorithm>
#include <mutex>
#include <stdexcept>

namespace desktop {

struct FakeService::State {
    std::recursive_mutex mutex; // held while a method runs
    Methods methods;
    std::vector<Call> calls;

    GDBusMessage* handle(GDBusConnection* bus, GDBusMessage* message)
    {
        const std::lock_guard lock(mutex);
        const char* method = g_dbus_message_get_member(message);
        const auto found = method ? methods.find(method) : methods.end();
        if (g_dbus_message_get_message_type(message) != G_DBUS_MESSAGE_TYPE_METHOD_CALL
            || found == methods.end())
            return message;

        const std::shared_ptr<GDBusMessage> owned(message, g_object_unref);
        GVariant* body = g_dbus_message_get_body(message);
        calls.push_back({
            .sender = g_dbus_message_get_sender(message),
            .path = g_dbus_message_get_path(message),
            .method = method,
            .arguments =
                body ? std::shared_ptr<GVariant>(g_variant_ref(body), g_variant_unref) : nullptr,
            .message = owned,
            .bus = bus,
        });
        found->second(Call(calls.back()));
        return nullptr;
    }
};

void FakeService::Call::answer(GVariant* values) const
{
    g_autoptr(GDBusMessage) reply = g_dbus_message_new_method_reply(message.get());
    if (values)
        g_dbus_message_set_body(reply, values);
    g_dbus_connection_send_message(bus, reply, G_DBUS_SEND_MESSAGE_FLAGS_NONE, nullptr, nullptr);
}

void FakeService::Call::refuse(const char* error, const char* reason) const
{
    g_autoptr(GDBusMessage) reply =
        g_dbus_message_new_method_error_literal(message.get(), error, reason);
    g_dbus_connection_send_message(bus, reply, G_DBUS_SEND_MESSAGE_FLAGS_NONE, nullptr, nullptr);
}

std::string FakeService::Call::text() const
{
    g_autofree char* values = arguments ? g_variant_print(arguments.get(), FALSE) : nullptr;
    return method + (values ? values : "()");
}

FakeService::FakeService(GBusType bus, const char* name, Methods methods)
    : state_(std::make_shared<State>())
{
    state_->methods = std::move(methods);
    g_autofree char* address = g_dbus_address_get_for_bus_sync(bus, nullptr, nullptr);
    connection_ = g_dbus_connection_new_for_address_sync(address ? address : "",
        static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT
            | G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
        nullptr, nullptr, nullptr);
    if (!connection_)
        throw std::runtime_error("no bus for " + std::string(name));
    g_dbus_connection_add_filter(
        connection_,
        [](GDBusConnection* connection, GDBusMessage* message, gboolean isIncoming, gpointer data) {
            const auto& state = *static_cast<std::shared_ptr<State>*>(data);
            return isIncoming ? state->handle(connection, message) : message;
        },
        new std::shared_ptr<State>(state_),
        [](gpointer data) { delete static_cast<std::shared_ptr<State>*>(data); });

    constexpr guint doNotQueue = 4, isOwner = 1;
    guint result = 0;
    g_autoptr(GVariant) reply =
        g_dbus_connection_call_sync(connection_, "org.freedesktop.DBus", "/org/freedesktop/DBus",
            "org.freedesktop.DBus", "RequestName", g_variant_new("(su)", name, doNotQueue),
            G_VARIANT_TYPE("(u)"), G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr);
    if (reply)
        g_variant_get(reply, "(u)", &result);
    if (result != isOwner)
        throw std::runtime_error("the name is taken: " + std::string(name));
}

FakeService::~FakeService()
{
    {
        const std::lock_guard lock(state_->mutex);
        state_->methods.clear();
    }
    g_dbus_connection_close_sync(connection_, nullptr, nullptr);
    g_object_unref(connection_);
}

std::function<void(const FakeService::Call&)> FakeService::answering(const std::string& values)
{
    return [values](const Call& call) { call.answer(g_variant_new_parsed(values.c_str())); };
}

std::vector<FakeService::Call> FakeService::calls() const
{
    const std::lock_guard lock(state_->mutex);
    return state_->calls;
}

bool FakeService::isCalled(const std::string& part, int times) const
{
    return eventually([&] {
        return std::ranges::count_if(calls(), [&](const Call& call) {
            return call.text().find(part) != std::string::npos;
        }) >= times;
    });
}

void FakeService::emit(
    const std::string& path, const char* interface, const char* signal, GVariant* values)
{
    g_dbus_connection_emit_signal(
        connection_, nullptr, path.c_str(), interface, signal, values, nullptr);
}

} // namespace desktop
