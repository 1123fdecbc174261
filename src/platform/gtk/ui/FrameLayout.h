#pragma once

#include "platform/ui/Layout.h"

#include <gtkmm/layoutmanager.h>

namespace gtk {

// One child in an area with a size of its own: what GTK lacks, ideal and maximum sizes included.
class FrameLayout final : public Gtk::LayoutManager {
public:
    static Glib::RefPtr<FrameLayout> create();

    void set(const ui::FrameOptions& options);

protected:
    void measure_vfunc(const Gtk::Widget& widget, Gtk::Orientation orientation, int forSize,
        int& minimum, int& natural, int& minimumBaseline, int& naturalBaseline) const override;
    void allocate_vfunc(const Gtk::Widget& widget, int width, int height, int baseline) override;

private:
    FrameLayout();

    ui::FrameOptions options_;
};

} // namespace gtk
