#include "platform/gtk/windows/FocusTracker.h"

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

} // namespace

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
    if (returnSource_)
        g_source_remove(returnSource_);
    g_signal_handlers_disconnect_by_data(windows_, this);
    for (guint index = 0; index < g_list_model_get_n_items(windows_); ++index) {
        auto* window = g_list_model_get_item(windows_, index);
        g_signal_handlers_disconnect_by_data(window, this);
        g_object_unref(window);
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
        auto* window = g_list_model_get_item(windows_, index);
        g_signal_connect(window, "notify::is-active", G_CALLBACK(changed), this);
        g_signal_connect(window, "notify::focus-widget", G_CALLBACK(changed), this);
        g_object_unref(window);
    }
}

void FocusTracker::update(GtkWindow* window)
{
    const bool isActive = gtk_window_is_active(window);
    if (!isActive && window != window_)
        return;

    auto* widget = gtk_window_get_focus(window);
    if (widget && isInMenuBar(widget))
        queueReturn();
    else if (!widget || !isInOpenMenu(widget))
        g_set_weak_pointer(&widget_, widget);
    if (!isActive || window == window_)
        return;
    g_set_weak_pointer(&window_, window);
    windowChanged_();
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

// Whether a menu is being opened or was closed cannot be told while the focus moves.
void FocusTracker::queueReturn()
{
    const auto returnFocus = +[](gpointer data) -> gboolean {
        auto* self = static_cast<FocusTracker*>(data);
        self->returnSource_ = 0;
        auto* focus = self->window_ ? gtk_window_get_focus(self->window_) : nullptr;
        if (focus && isInMenuBar(focus) && !isInOpenMenu(focus) && !isChosen(focus))
            self->leaveMenus();
        return G_SOURCE_REMOVE;
    };
    if (!returnSource_)
        returnSource_ = g_idle_add(returnFocus, this);
}

} // namespace gtk
