#pragma once

#include "platform/gtk/ui/NativeWidget.h"

namespace gtk {

// A widget without children on a GTK widget of its own, which leaves its parent when this goes.
template <class Native> class LeafWidget : public NativeWidget {
public:
    ~LeafWidget() override
    {
        if (leaf_.get_parent())
            leaf_.unparent();
    }

    Gtk::Widget& native() final { return leaf_; }

protected:
    Native& leaf() { return leaf_; }

private:
    Native leaf_;
};

} // namespace gtk
