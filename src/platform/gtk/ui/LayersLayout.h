#pragma once

#include "platform/ui/Layout.h"

#include <cstddef>
#include <gtkmm/layoutmanager.h>

namespace gtk {

// Children on top of each other. The size is that of one of them, or of the largest.
class LayersLayout final : public Gtk::LayoutManager {
public:
    static Glib::RefPtr<LayersLayout> create();

    // `base` is the index of the child whose size counts, or `LayersNode::allChildren`.
    void set(ui::Alignment alignment, std::size_t base);

protected:
    void measure_vfunc(const Gtk::Widget& widget, Gtk::Orientation orientation, int forSize,
        int& minimum, int& natural, int& minimumBaseline, int& naturalBaseline) const override;
    void allocate_vfunc(const Gtk::Widget& widget, int width, int height, int baseline) override;

private:
    LayersLayout();

    ui::Alignment alignment_ = ui::Alignment::center;
    std::size_t base_ = static_cast<std::size_t>(-1);
};

} // namespace gtk
