#pragma once

#include <functional>
#include <gtk/gtk.h>

namespace gtk {

// Which of the program's windows has the keyboard, or had it last while another program has it, and
// which widget in it. Menus act on these, so a widget inside of a menu never counts.
class FocusTracker {
public:
    // Calls `windowChanged` each time another window has got the keyboard. To be made when the
    // toolkit has started.
    explicit FocusTracker(std::function<void()> windowChanged);
    ~FocusTracker();

    FocusTracker(const FocusTracker&) = delete;
    FocusTracker& operator=(const FocusTracker&) = delete;

    // Null before the first one and when it has gone.
    GtkWindow* window() const { return window_; }

    // Null where none has the focus.
    GtkWidget* widget() const { return widget_; }

    // Gives the keyboard back to that widget when a menu has it. The toolkit leaves it in the menu
    // bar, so this also happens by itself after a menu is closed.
    void leaveMenus();

private:
    void watchNewWindows(guint position, guint count);
    void update(GtkWindow* window);
    void queueReturn();

    const std::function<void()> windowChanged_;
    GListModel* windows_;
    GtkWindow* window_ = nullptr; // both are forgotten by themselves when they go
    GtkWidget* widget_ = nullptr;
    guint returnSource_ = 0; // of the main loop
};

} // namespace gtk
