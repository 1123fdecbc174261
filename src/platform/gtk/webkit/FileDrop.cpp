#include "platform/gtk/webkit/FileDrop.h"

#include "platform/appkit/NSDraggingDestination.h"
#include "platform/gtk/webkit/EngineView.h"

namespace gtk {

namespace {

// The dragged files that have a path on this computer.
platform::NSDraggingInfo draggingInfo(const GValue* files)
{
    platform::NSDraggingInfo info;
    auto* list = static_cast<GdkFileList*>(g_value_get_boxed(files));
    g_autoptr(GSList) members = gdk_file_list_get_files(list);
    for (auto* member = members; member; member = member->next) {
        if (const char* path = g_file_peek_path(G_FILE(member->data)))
            info.fileURLs.push_back(platform::URL::fileURL(path));
    }
    return info;
}

} // namespace

FileDrop::FileDrop(EngineView& owner)
    : owner_(owner)
    , target_(gtk_drop_target_new(GDK_TYPE_FILE_LIST, GDK_ACTION_COPY))
{
    // Before the engine's own target, and with the names of the files while they are still over the
    // view: what is passed on later than that no longer reaches the page.
    gtk_event_controller_set_propagation_phase(GTK_EVENT_CONTROLLER(target_), GTK_PHASE_CAPTURE);
    gtk_drop_target_set_preload(target_, TRUE);
    signals_.connect(target_, "notify::value",
        G_CALLBACK(+[](GObject*, GParamSpec*, FileDrop* self) { self->look(); }), this);
    signals_.connect(target_, "drop",
        G_CALLBACK(+[](GtkDropTarget*, const GValue* files, double, double, FileDrop* self) {
            return static_cast<gboolean>(self->drop(files));
        }),
        this);
    gtk_widget_add_controller(GTK_WIDGET(owner.native()), GTK_EVENT_CONTROLLER(target_));
}

void FileDrop::look()
{
    const auto* files = gtk_drop_target_get_value(target_);
    const auto destination = owner_.draggingDestination;
    if (files && !(destination && destination->takesDrag(draggingInfo(files))))
        gtk_drop_target_reject(target_);
}

bool FileDrop::drop(const GValue* files)
{
    const auto destination = owner_.draggingDestination;
    return destination && destination->performDragOperation(draggingInfo(files));
}

} // namespace gtk
