#include "platform/gtk/ui/FirstFrame.h"

#include <glibmm/main.h>
#include <utility>

namespace gtk {

void whenEngineHasAnswered(std::function<void()> task)
{
    Glib::signal_idle().connect_once(std::move(task));
}

FirstFrame::FirstFrame(Gtk::Widget& widget)
    : widget_(widget)
    , mapped_(widget.signal_map().connect([this] { watchFrames(); }))
{
}

FirstFrame::~FirstFrame()
{
    mapped_.disconnect();
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
    mapped_.disconnect();
    const auto painted = +[](GdkFrameClock*, FirstFrame* self) { self->paint(); };
    frames_.emplace().connect(
        gtk_widget_get_frame_clock(widget_.gobj()), "after-paint", G_CALLBACK(painted), this);
}

void FirstFrame::paint()
{
    frames_.reset();
    gdk_display_flush(gtk_widget_get_display(widget_.gobj())); // before whatever keeps us busy next
    whenEngineHasAnswered(lifetime_.guard([this] { runTasks(); }));
}

void FirstFrame::runTasks()
{
    hasPainted_ = true;
    for (const auto& task : std::exchange(tasks_, {}))
        task();
}

} // namespace gtk
