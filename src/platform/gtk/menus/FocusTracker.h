#pragma once

#include "platform/ui/MenuItem.h"

#include <functional>
#include <gtk/gtk.h>
#include <sigc++/connection.h>

namespace gtk {

// What menus act on: the window of the program that has the keyboard, or had it last while another
// program has it, and the widget in it that has the focus. A widget inside of a menu never counts.
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

    // Does what one of the platform's own menu items says, to the window and the widget. Nothing
    // happens for the items that concern the whole program.
    void perform(ui::StandardCommand command);

private:
    void watchNewWindows(guint position, guint count);
    void update(GtkWindow* window);
    void edit(const char* action, const char* pageCommand);

    // Gives the keyboard back to the widget when a menu has it.
    void leaveMenus();
    void leaveClosedMenus();

    const std::function<void()> windowChanged_;
    GListModel* const windows_;
    GtkWindow* window_ = nullptr; // both are forgotten by themselves when they go
    GtkWidget* widget_ = nullptr; // null where no widget has the focus
    sigc::connection return_; // to the widget, in an idle moment
};

} // namespace gtk
