#pragma once

#include "platform/gtk/webkit/LoadFailure.h"

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/image.h>
#include <gtkmm/label.h>

namespace gtk {

// Stands over a web view that has no page to show: what happened, the address, and a button to try
// again. It follows the desktop's theme, light or dark, and hides what is under it.
class FailurePanel final : public Gtk::Box {
public:
    FailurePanel();

    void show(const LoadFailure& failure);

    // The user waits for the outcome of an attempt.
    void showAttempt();

    bool hasFocus() const { return button_.has_focus(); }
    void takeFocus() { button_.grab_focus(); }

    Glib::SignalProxy<void()> signalTryAgain() { return button_.signal_clicked(); }

private:
    Gtk::Box content_;
    Gtk::Image picture_;
    Gtk::Label title_;
    Gtk::Label explanation_;
    Gtk::Label address_;
    Gtk::Button button_;
};

} // namespace gtk
