#include "platform/gtk/launch/TerminationSignals.h"

#include <csignal>
#include <glib-unix.h>

namespace gtk {

namespace {

constexpr std::array signalNumbers{SIGTERM, SIGINT, SIGHUP};

gboolean handle(gpointer handler)
{
    (*static_cast<std::function<void()>*>(handler))();
    return G_SOURCE_CONTINUE;
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> handler)
    : handler_(std::move(handler))
{
    static_assert(signalNumbers.size() == std::tuple_size_v<decltype(sources_)>);
    for (std::size_t i = 0; i < signalNumbers.size(); ++i)
        sources_[i] = g_unix_signal_add(signalNumbers[i], handle, &handler_);
}

TerminationSignals::~TerminationSignals()
{
    for (const auto source : sources_)
        g_source_remove(source);
}

} // namespace gtk
