#pragma once

#include "platform/ui/Layout.h"

#include <cstddef>
#include <gtkmm/layoutmanager.h>

// The ways to arrange children that the toolkit lacks.

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
