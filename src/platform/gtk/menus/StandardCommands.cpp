#include "platform/gtk/menus/StandardCommands.h"

#include "platform/gtk/windows/FocusTracker.h"

#include <webkit/webkit.h>

namespace gtk {

namespace {

// Fields of text have actions of the toolkit, pages have commands of the engine.
void edit(GtkWidget* widget, const char* action, const char* pageCommand)
{
    if (!widget)
        return;
    if (WEBKIT_IS_WEB_VIEW(widget))
        webkit_web_view_execute_editing_command(WEBKIT_WEB_VIEW(widget), pageCommand);
    else
        gtk_widget_activate_action(widget, action, nullptr);
}

void toggleFullScreen(GtkWindow* window)
{
    if (gtk_window_is_fullscreen(window))
        gtk_window_unfullscreen(window);
    else
        gtk_window_fullscreen(window);
}

} // namespace

void perform(ui::StandardCommand command, FocusTracker& focus)
{
    focus.leaveMenus();
    using enum ui::StandardCommand;
    switch (command) {
    case undo:
        return edit(focus.widget(), "text.undo", WEBKIT_EDITING_COMMAND_UNDO);
    case redo:
        return edit(focus.widget(), "text.redo", WEBKIT_EDITING_COMMAND_REDO);
    case cut:
        return edit(focus.widget(), "clipboard.cut", WEBKIT_EDITING_COMMAND_CUT);
    case copy:
        return edit(focus.widget(), "clipboard.copy", WEBKIT_EDITING_COMMAND_COPY);
    case paste:
        return edit(focus.widget(), "clipboard.paste", WEBKIT_EDITING_COMMAND_PASTE);
    case selectAll:
        return edit(focus.widget(), "selection.select-all", WEBKIT_EDITING_COMMAND_SELECT_ALL);
    case toggleFullScreen:
        if (focus.window())
            gtk::toggleFullScreen(focus.window());
        return;
    case minimize:
        if (focus.window())
            gtk_window_minimize(focus.window());
        return;
    case quit:
    case showPermissions:
    case showShortcuts:
        return;
    }
}

} // namespace gtk
