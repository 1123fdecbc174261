#include "platform/gtk/diagnosis/BusQuestion.h"

namespace gtk {

namespace {

constexpr int patience = 2000; // milliseconds; less than a check has

std::string failure(const GError* error)
{
    if (g_error_matches(error, G_DBUS_ERROR, G_DBUS_ERROR_SERVICE_UNKNOWN)
        || g_error_matches(error, G_DBUS_ERROR, G_DBUS_ERROR_NAME_HAS_NO_OWNER))
        return "no such service";
    if (g_error_matches(error, G_IO_ERROR, G_IO_ERROR_TIMED_OUT)
        || g_error_matches(error, G_DBUS_ERROR, G_DBUS_ERROR_NO_REPLY))
        return "the service does not answer";
    return error->message;
}

} // namespace

BusAnswer ask(const BusQuestion& question)
{
    g_autoptr(GError) error = nullptr;
    g_autoptr(GDBusConnection) bus = g_bus_get_sync(question.bus, nullptr, &error);
    if (!bus)
        return {.failure = "there is no message bus"};
    auto* values =
        g_dbus_connection_call_sync(bus, question.service, question.path, question.interface,
            question.method, nullptr, nullptr, G_DBUS_CALL_FLAGS_NONE, patience, nullptr, &error);
    return {values, values ? "" : failure(error)};
}

} // namespace gtk
