#pragma once

#include "platform/gtk/foundation/SignalHandlers.h"

#include <gtk/gtk.h>

namespace gtk {

class EngineView;

// Shows every drag of files over a web view to its dragging destination first. A drag that is not
// taken there goes on to the engine, and so to the page.
class FileDrop {
public:
    // `owner` must outlive this.
    explicit FileDrop(EngineView& owner);

    FileDrop(const FileDrop&) = delete;
    FileDrop& operator=(const FileDrop&) = delete;

private:
    void look();
    bool drop(const GValue* files);

    EngineView& owner_;
    GtkDropTarget* const target_; // belongs to the view
    SignalHandlers signals_;
};

} // namespace gtk
