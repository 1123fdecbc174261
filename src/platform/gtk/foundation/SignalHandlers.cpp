#include "platform/gtk/foundation/SignalHandlers.h"

namespace gtk {

SignalHandlers::~SignalHandlers()
{
    for (const auto& handler : handlers_)
        g_signal_handler_disconnect(handler.object.get(), handler.id);
}

void SignalHandlers::connect(gpointer object, const char* signal, GCallback handler, gpointer data)
{
    handlers_.push_back(
        {retain(G_OBJECT(object)), g_signal_connect(object, signal, handler, data)});
}

} // namespace gtk
