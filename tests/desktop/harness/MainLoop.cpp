#include "MainLoop.h"

#include <glib.h>

namespace desktop {

bool until(const std::function<bool()>& condition)
{
    constexpr guint pause = 20; // milliseconds, after which the loop turns though nothing happens
    constexpr gint64 limit = gint64{60} * G_USEC_PER_SEC;
    const auto end = g_get_monotonic_time() + limit;
    // Of the lowest priority: a condition that takes longer than the pause keeps nothing waiting.
    const auto pulse = g_timeout_add_full(
        G_PRIORITY_LOW, pause, [](gpointer) -> gboolean { return G_SOURCE_CONTINUE; }, nullptr,
        nullptr);
    bool holds = condition();
    while (!holds && g_get_monotonic_time() < end) {
        g_main_context_iteration(nullptr, TRUE);
        holds = condition();
    }
    g_source_remove(pulse);
    return holds;
}

void runWaitingEvents()
{
    while (g_main_context_iteration(nullptr, FALSE)) { }
}

} // namespace desktop
