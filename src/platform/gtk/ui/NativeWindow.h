#pragma once

#include "platform/appkit/NSWindow.h"

#include <algorithm>
#include <gtkmm/window.h>

// The two sides of a window on the screen: the platform's object, and the toolkit's.

namespace gtk {

inline constexpr auto platformWindowKey = "velmaro-window";

// Makes `window` known as the platform's side of `native`. It must take itself away, with null,
// when it goes.
inline void setPlatformWindow(Gtk::Window& native, platform::NSWindow* window)
{
    g_object_set_data(G_OBJECT(native.gobj()), platformWindowKey, window);
}

// The platform's window that `widget` is in; null while it is in no window.
inline platform::NSWindow* platformWindow(const Gtk::Widget& widget)
{
    auto* root = gtk_widget_get_root(const_cast<GtkWidget*>(widget.gobj()));
    return root
        ? static_cast<platform::NSWindow*>(g_object_get_data(G_OBJECT(root), platformWindowKey))
        : nullptr;
}

// The toolkit's side of `window`; null for a window that no screen shows.
inline Gtk::Window* nativeWindow(const platform::NSWindow& window)
{
    const auto toplevels = Gtk::Window::list_toplevels();
    const auto found = std::ranges::find_if(
        toplevels, [&](const auto* native) { return platformWindow(*native) == &window; });
    return found == toplevels.end() ? nullptr : *found;
}

} // namespace gtk
