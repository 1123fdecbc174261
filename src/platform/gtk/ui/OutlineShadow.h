#pragma once

#include "platform/ui/Options.h"

#include <gtkmm/snapshot.h>
#include <gtkmm/widget.h>

namespace gtk {

// Gives what is drawn on `snapshot` while this lives a shadow of its own outline.
class OutlineShadow {
public:
    OutlineShadow(Gtk::Snapshot& snapshot, const Gtk::Widget& widget, const ui::Shadow& shadow);
    ~OutlineShadow();

    OutlineShadow(const OutlineShadow&) = delete;
    OutlineShadow& operator=(const OutlineShadow&) = delete;

private:
    Gtk::Snapshot& snapshot_;
    bool isVisible_ = false;
};

} // namespace gtk
