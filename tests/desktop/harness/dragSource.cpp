// A window titled "Drag source" with nothing in it but the files that it is started with. They can
// be dragged out of it, from anywhere in the window, into any other program. It writes how that
// goes: "ready" when it is drawn, "begun", "accepted" when it is over somebody who would take them,
// and "ended".

#include <cstdio>
#include <gtk/gtk.h>

namespace {

constexpr int size = 120; // of the window in each direction, pixels

GdkContentProvider* filesOf(char** paths)
{
    GSList* files = nullptr;
    for (; *paths; ++paths)
        files = g_slist_append(files, g_file_new_for_path(*paths));
    auto* list = gdk_file_list_new_from_list(files);
    g_slist_free_full(files, g_object_unref);
    return gdk_content_provider_new_typed(GDK_TYPE_FILE_LIST, list);
}

void tell(const char* event)
{
    std::puts(event);
    std::fflush(stdout);
}

// A button that is pressed before the window has a layout meets nothing in it.
void tellReady(GdkFrameClock* clock)
{
    g_signal_handlers_disconnect_by_func(clock, reinterpret_cast<gpointer>(tellReady), nullptr);
    tell("ready");
}

void tellIfAccepted(GdkDrag* drag)
{
    if (gdk_drag_get_selected_action(drag) == GDK_ACTION_COPY)
        tell("accepted");
}

void begin(GtkDragSource*, GdkDrag* drag)
{
    tell("begun");
    g_signal_connect(drag, "notify::selected-action", G_CALLBACK(tellIfAccepted), nullptr);
}

void end(GtkDragSource*)
{
    tell("ended");
}

} // namespace

int main(int, char** arguments)
{
    gtk_init();
    auto* area = gtk_label_new("Files");
    gtk_widget_set_size_request(area, size, size);
    auto* source = gtk_drag_source_new();
    gtk_drag_source_set_content(source, filesOf(arguments + 1));
    gtk_drag_source_set_actions(source, GDK_ACTION_COPY);
    g_signal_connect(source, "drag-begin", G_CALLBACK(begin), nullptr);
    g_signal_connect(source, "drag-end", G_CALLBACK(end), nullptr);
    gtk_widget_add_controller(area, GTK_EVENT_CONTROLLER(source));

    auto* window = gtk_window_new();
    gtk_window_set_title(GTK_WINDOW(window), "Drag source");
    gtk_window_set_child(GTK_WINDOW(window), area);
    gtk_window_present(GTK_WINDOW(window));
    g_signal_connect(
        gtk_widget_get_frame_clock(window), "after-paint", G_CALLBACK(tellReady), nullptr);
    while (g_list_model_get_n_items(gtk_window_get_toplevels()) > 0)
        g_main_context_iteration(nullptr, TRUE);
}
