#pragma once

#include "platform/ui/Layout.h"

#include <gtkmm/layoutmanager.h>

namespace gtk {

// One child with room around it.
class PaddingLayout final : public Gtk::LayoutManager {
public:
    static Glib::RefPtr<PaddingLayout> create();

    void set(const ui::PaddingOptions& options);

protected:
    void measure_vfunc(const Gtk::Widget& widget, Gtk::Orientation orientation, int forSize,
        int& minimum, int& natural, int& minimumBaseline, int& naturalBaseline) const override;
    void allocate_vfunc(const Gtk::Widget& widget, int width, int height, int baseline) override;

private:
    PaddingLayout();

    int before(Gtk::Orientation orientation) const; // on the leading or upper side
    int total(Gtk::Orientation orientation) const;

    ui::PaddingOptions options_;
};

} // namespace gtk
