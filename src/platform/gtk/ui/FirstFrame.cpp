#include "platform/gtk/ui/FirstFrame.h"

#include <glibmm/main.h>
#include <gtk/gtk.h>
#include <utility>

namespace gtk {

FirstFrame::FirstFrame(Gtk::Widget& widget)
    : widget_(widget)
    , realized_(widget.signal_map().connect([this] { watchFrames(); }))
{
}

FirstFrame::~FirstFrame()
{
    realized_.disconnect();
    idle_.disconnect();
    if (painted_)
        g_signal_handler_disconnect(clock_, painted_);
    g_clear_object(&clock_);
}

void FirstFrame::whenPainted(std::function<void()> task)
{
    if (hasPainted_)
        task();
    else
        tasks_.push_back(std::move(task));
}

void FirstFrame::watchFrames()
{
    realized_.disconnect();
    clock_ = GDK_FRAME_CLOCK(g_object_ref(gtk_widget_get_frame_clock(widget_.gobj())));
    painted_ = g_signal_connect_swapped(
        clock_, "after-paint", G_CALLBACK(+[](FirstFrame* self) { self->paint(); }), this);
}

void FirstFrame::paint()
{
    g_signal_handler_disconnect(clock_, std::exchange(painted_, 0));
    gdk_display_flush(gtk_widget_get_display(widget_.gobj())); // before whatever keeps us busy next
    // Painting has kept the engine from answering its processes.
    idle_ = Glib::signal_idle().connect([this] {
        runTasks();
        return false;
    });
}

void FirstFrame::runTasks()
{
    hasPainted_ = true;
    for (const auto& task : std::exchange(tasks_, {}))
        task();
}

} // namespace gtk
