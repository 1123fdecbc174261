#pragma once

#include "platform/gtk/sparkle/UpdatePane.h"

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/progressbar.h>
#include <gtkmm/window.h>
#include <memory>

namespace gtk {

// The updater's window: one pane after the other.
class UpdateWindow {
public:
    // The box shows what `checksAutomatically` returns, and `setChecksAutomatically` is told when
    // the user changes it.
    UpdateWindow(std::function<bool()> checksAutomatically,
        std::function<void(bool)> setChecksAutomatically);
    ~UpdateWindow();

    UpdateWindow(const UpdateWindow&) = delete;
    UpdateWindow& operator=(const UpdateWindow&) = delete;

    // Shows `pane`, in front of other windows when there was none.
    void show(UpdatePane pane);

    // Of the pane's progress bar. Without a fraction there is no telling.
    void setProgress(std::optional<double> fraction, const std::string& text = {});

    // While it is open.
    void bringForward() { window_->present(); }
    void close();
    bool isOpen() const { return pane_ != nullptr; }

private:
    void makeWindow();
    void fill(Gtk::Box& column);
    Gtk::Widget& makeNotes();
    Gtk::Widget& makeButtons();
    void press(const std::function<void()>& action);

    std::function<bool()> checksAutomatically_;
    std::function<void(bool)> setChecksAutomatically_;
    std::unique_ptr<Gtk::Window> window_; // null until a pane is shown
    std::shared_ptr<const UpdatePane> pane_; // on show; null while the window is closed
    Gtk::ProgressBar* progress_ = nullptr; // the pane's; null where it has none
    Gtk::Button* defaultButton_ = nullptr;
};

} // namespace gtk
