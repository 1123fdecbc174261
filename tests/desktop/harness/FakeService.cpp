#include "FakeService.h"

#include <cstdlib>
#include <future>
#include <memory>
#include <stdexcept>

namespace desktop {

namespace {

GVariant* ownName(GDBusConnection* connection, const std::string& name, GError** error)
{
    return g_dbus_connection_call_sync(connection, "org.freedesktop.DBus", "/org/freedesktop/DBus",
        "org.freedesktop.DBus", "RequestName",
        g_variant_new("(su)", name.c_str(), 4u /* do not queue */), G_VARIANT_TYPE("(u)"),
        G_DBUS_CALL_FLAGS_NONE, -1, nullptr, error);
}

} // namespace

FakeService::FakeService(const char* busVariable, std::string name)
    : busVariable_(busVariable)
    , name_(std::move(name))
    , context_(g_main_context_new())
    , loop_(g_main_loop_new(context_, FALSE))
{
}

FakeService::~FakeService()
{
    g_main_loop_unref(loop_);
    g_main_context_unref(context_);
}

std::vector<std::string> FakeService::calls() const
{
    const std::lock_guard lock(mutex_);
    return calls_;
}

void FakeService::start()
{
    std::promise<void> isUp;
    thread_ = std::thread([this, &isUp] {
        g_main_context_push_thread_default(context_);
        run();
        isUp.set_value();
        if (failure_.empty())
            g_main_loop_run(loop_);
        if (connection_) {
            g_dbus_connection_close_sync(connection_, nullptr, nullptr);
            g_object_unref(connection_);
        }
        g_main_context_pop_thread_default(context_);
    });
    isUp.get_future().wait();
    if (!failure_.empty()) {
        thread_.join();
        throw std::runtime_error("no " + name_ + ": " + failure_);
    }
}

void FakeService::run()
{
    const char* address = std::getenv(busVariable_.c_str());
    GError* error = nullptr;
    connection_ = g_dbus_connection_new_for_address_sync(address ? address : "",
        static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT
            | G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
        nullptr, nullptr, &error);
    if (connection_) {
        registerObjects();
        if (GVariant* reply = ownName(connection_, name_, &error)) {
            guint32 result = 0;
            g_variant_get(reply, "(u)", &result);
            g_variant_unref(reply);
            if (result != 1)
                failure_ = "its name is taken";
        }
    }
    if (error) {
        failure_ = error->message;
        g_error_free(error);
    }
}

void FakeService::stop()
{
    if (!thread_.joinable())
        return;
    invoke([this] { g_main_loop_quit(loop_); });
    thread_.join();
}

GVariant* FakeService::property(const std::string&, const std::string&)
{
    return nullptr;
}

void FakeService::registerObject(const std::string& path, const char* introspection)
{
    static const GDBusInterfaceVTable operations = {
        .method_call =
            [](GDBusConnection*, const char*, const char*, const char*, const char* method,
                GVariant* arguments, GDBusMethodInvocation* invocation, gpointer self) {
                static_cast<FakeService*>(self)->handle(method, arguments, invocation);
            },
        .get_property =
            [](GDBusConnection*, const char*, const char* path, const char*, const char* name,
                GError** error, gpointer self) {
                GVariant* value = static_cast<FakeService*>(self)->property(path, name);
                if (!value)
                    g_set_error(error, G_DBUS_ERROR, G_DBUS_ERROR_UNKNOWN_PROPERTY, "%s", name);
                return value;
            },
        .set_property = [](GDBusConnection*, const char*, const char*, const char*,
                            const char* name, GVariant* value, GError**,
                            gpointer self) -> gboolean {
            char* text = g_variant_print(value, FALSE);
            static_cast<FakeService*>(self)->note(std::string(name) + "=" + text);
            g_free(text);
            return TRUE;
        },
        .padding = {},
    };
    GDBusNodeInfo* node = g_dbus_node_info_new_for_xml(introspection, nullptr);
    for (GDBusInterfaceInfo** interface = node->interfaces; *interface; ++interface) {
        g_dbus_connection_register_object(
            connection_, path.c_str(), *interface, &operations, this, nullptr, nullptr);
    }
    g_dbus_node_info_unref(node);
}

void FakeService::emit(const std::string& path, const std::string& interface,
    const std::string& signal, GVariant* values)
{
    g_dbus_connection_emit_signal(
        connection_, nullptr, path.c_str(), interface.c_str(), signal.c_str(), values, nullptr);
}

void FakeService::note(const std::string& call)
{
    const std::lock_guard lock(mutex_);
    calls_.push_back(call);
}

void FakeService::invoke(std::function<void()> task)
{
    g_main_context_invoke_full(
        context_, G_PRIORITY_DEFAULT,
        [](gpointer data) -> gboolean {
            (*static_cast<std::function<void()>*>(data))();
            return G_SOURCE_REMOVE;
        },
        new std::function<void()>(std::move(task)),
        [](gpointer data) { delete static_cast<std::function<void()>*>(data); });
}

} // namespace desktop
