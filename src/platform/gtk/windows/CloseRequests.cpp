#include "platform/gtk/windows/CloseRequests.h"

#include <utility>

namespace gtk {

namespace {

guint eventSignal()
{
    return g_signal_lookup("event", GDK_TYPE_SURFACE);
}

} // namespace

// The toolkit's handler comes before any other and ends the signal, so only a hook sees them all.
CloseRequests::CloseRequests(GdkSurface* surface, std::function<void()> requested)
    : surface_(surface)
    , requested_(std::move(requested))
    , hook_(g_signal_add_emission_hook(eventSignal(), 0, receive, this, nullptr))
{
}

CloseRequests::~CloseRequests()
{
    g_signal_remove_emission_hook(eventSignal(), hook_);
}

gboolean CloseRequests::receive(
    GSignalInvocationHint*, guint, const GValue* arguments, gpointer requests)
{
    const auto* self = static_cast<CloseRequests*>(requests);
    auto* event = static_cast<GdkEvent*>(g_value_get_pointer(arguments + 1));
    if (g_value_peek_pointer(arguments) == self->surface_
        && gdk_event_get_event_type(event) == GDK_DELETE)
        self->requested_();
    return TRUE; // goes on
}

} // namespace gtk
