#pragma once

#include <functional>
#include <gdkmm/monitor.h>
#include <gdkmm/rectangle.h>
#include <gtkmm/window.h>
#include <optional>

namespace gtk {

// What only X11 lets a program know and decide: where things are. In points of the desktop, counted
// downwards; absent, or without effect, on any other display.
namespace X11Window {

// The part of the monitor that no panel covers.
std::optional<Gdk::Rectangle> workArea(GdkMonitor* monitor);

// The monitor that the user has made the first one; null when there is no choice.
Glib::RefPtr<Gdk::Monitor> primaryMonitor(Gdk::Display& display);

// What the user sees as the window: with title bar and border, without shadow. The window must be
// realized.
std::optional<Gdk::Rectangle> outerFrame(Gtk::Window& window);

// Puts the upper left corner of that frame at (`x`, `y`). The window must be realized; one that is
// not shown yet appears there at once.
void move(Gtk::Window& window, int x, int y);

// Calls `handler` whenever the window has been moved or resized, as long as it lives; the toolkit
// may learn of it only after that. The window must be realized.
void onConfigured(Gtk::Window& window, std::function<void()> handler);

} // namespace X11Window

} // namespace gtk
