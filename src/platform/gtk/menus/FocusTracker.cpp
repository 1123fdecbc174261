#include "platform/gtk/menus/FocusTracker.h"

#include "platform/gtk/foundation/ObjectPointer.h"

#include <glibmm/main.h>
#include <webkit/webkit.h>

namespace gtk {

namespace {

bool isInOpenMenu(GtkWidget* widget)
{
    return gtk_widget_get_ancestor(widget, GTK_TYPE_POPOVER);
}

bool isInMenuBar(GtkWidget* widget)
{
    return gtk_widget_get_ancestor(widget, GTK_TYPE_POPOVER_MENU_BAR);
}

// The title of a menu that is open, or that the arrow keys have come to.
bool isChosen(GtkWidget* widget)
{
    return gtk_widget_get_state_flags(widget) & GTK_STATE_FLAG_SELECTED;
}

void toggleFullScreen(GtkWindow* window)
{
    if (gtk_window_is_fullscreen(window))
        gtk_window_unfullscreen(window);
    else
        gtk_window_fullscreen(window);
}

} // namespace

// The windows' signals are connected to by hand: when the list tells of a window, gtkmm has yet to
// make its own object for it, and a handler that keeps the window would keep it for ever.
FocusTracker::FocusTracker(std::function<void()> windowChanged)
    : windowChanged_(std::move(windowChanged))
    , windows_(gtk_window_get_toplevels())
{
    const auto itemsChanged = +[](GListModel*, guint position, guint, guint added, gpointer self) {
        static_cast<FocusTracker*>(self)->watchNewWindows(position, added);
    };
    g_signal_connect(windows_, "items-changed", G_CALLBACK(itemsChanged), this);
    watchNewWindows(0, g_list_model_get_n_items(windows_));
}

FocusTracker::~FocusTracker()
{
    return_.disconnect();
    g_signal_handlers_disconnect_by_data(windows_, this);
    for (guint index = 0; index < g_list_model_get_n_items(windows_); ++index) {
        const ObjectPointer<GObject> window(G_OBJECT(g_list_model_get_item(windows_, index)));
        g_signal_handlers_disconnect_by_data(window.get(), this);
    }
    g_clear_weak_pointer(&window_);
    g_clear_weak_pointer(&widget_);
}

void FocusTracker::watchNewWindows(guint position, guint count)
{
    const auto changed = +[](GtkWindow* window, GParamSpec*, gpointer self) {
        static_cast<FocusTracker*>(self)->update(window);
    };
    for (guint index = position; index < position + count; ++index) {
        const ObjectPointer<GObject> window(G_OBJECT(g_list_model_get_item(windows_, index)));
        g_signal_connect(window.get(), "notify::is-active", G_CALLBACK(changed), this);
        g_signal_connect(window.get(), "notify::focus-widget", G_CALLBACK(changed), this);
    }
}

void FocusTracker::update(GtkWindow* window)
{
    const bool isActive = gtk_window_is_active(window);
    if (!isActive && window != window_)
        return;

    // Whether a menu is being opened or was closed cannot be told while the focus moves.
    auto* widget = gtk_window_get_focus(window);
    if (widget && isInMenuBar(widget)) {
        if (!return_.connected())
            return_ = Glib::signal_idle().connect([this] {
                leaveClosedMenus();
                return false;
            });
    } else if (!widget || !isInOpenMenu(widget)) {
        g_set_weak_pointer(&widget_, widget);
    }
    if (!isActive || window == window_)
        return;
    g_set_weak_pointer(&window_, window);
    windowChanged_();
}

void FocusTracker::perform(ui::StandardCommand command)
{
    leaveMenus();
    using enum ui::StandardCommand;
    switch (command) {
    case undo:
        return edit("text.undo", WEBKIT_EDITING_COMMAND_UNDO);
    case redo:
        return edit("text.redo", WEBKIT_EDITING_COMMAND_REDO);
    case cut:
        return edit("clipboard.cut", WEBKIT_EDITING_COMMAND_CUT);
    case copy:
        return edit("clipboard.copy", WEBKIT_EDITING_COMMAND_COPY);
    case paste:
        return edit("clipboard.paste", WEBKIT_EDITING_COMMAND_PASTE);
    case selectAll:
        return edit("selection.select-all", WEBKIT_EDITING_COMMAND_SELECT_ALL);
    case toggleFullScreen:
        if (window_)
            gtk::toggleFullScreen(window_);
        return;
    case minimize:
        if (window_)
            gtk_window_minimize(window_);
        return;
    case quit:
    case showPermissions:
    case showShortcuts:
        return;
    }
}

// Fields of text have actions of the toolkit, pages have commands of the engine.
void FocusTracker::edit(const char* action, const char* pageCommand)
{
    if (!widget_)
        return;
    if (WEBKIT_IS_WEB_VIEW(widget_))
        webkit_web_view_execute_editing_command(WEBKIT_WEB_VIEW(widget_), pageCommand);
    else
        gtk_widget_activate_action(widget_, action, nullptr);
}

void FocusTracker::leaveMenus()
{
    auto* focus = window_ ? gtk_window_get_focus(window_) : nullptr;
    if (!widget_ || !focus || !(isInMenuBar(focus) || isInOpenMenu(focus)))
        return;
    if (GTK_IS_TEXT(widget_))
        gtk_text_grab_focus_without_selecting(GTK_TEXT(widget_));
    else
        gtk_widget_grab_focus(widget_);
}

// The toolkit leaves the keyboard in the menu bar when a menu is closed.
void FocusTracker::leaveClosedMenus()
{
    auto* focus = window_ ? gtk_window_get_focus(window_) : nullptr;
    if (focus && isInMenuBar(focus) && !isInOpenMenu(focus) && !isChosen(focus))
        leaveMenus();
}

} // namespace gtk
