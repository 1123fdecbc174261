#pragma once

#include "platform/appkit/NSScreen.h"

#include <gdkmm/monitor.h>

namespace gtk {

// One monitor of the display. It belongs to the monitor and goes when that is unplugged.
class GtkScreen final : public platform::NSScreen {
public:
    // The one whose lower left corner is the origin: the user's primary monitor where the desktop
    // has one. Null without a monitor, and before the toolkit has started.
    static GtkScreen* first();

    // The one that holds the largest part of `surface`; null when that is on no screen.
    static GtkScreen* of(GdkSurface* surface);

    platform::NSRect visibleFrame() const override;

    // The whole monitor, in points of the desktop.
    Gdk::Rectangle geometry() const;

private:
    explicit GtkScreen(GdkMonitor* monitor)
        : monitor_(monitor)
    {
    }

    static GtkScreen* of(GdkMonitor* monitor);

    GdkMonitor* monitor_; // owns this
};

// The desktop counts from its upper left corner downwards, `NSRect` from the lower left corner of
// the first screen upwards. `first` is where that screen lies on the desktop.
platform::NSRect fromDesktop(const Gdk::Rectangle& area, const Gdk::Rectangle& first);

// To whole points, rounded up and to the left.
Gdk::Rectangle toDesktop(const platform::NSRect& area, const Gdk::Rectangle& first);

} // namespace gtk
