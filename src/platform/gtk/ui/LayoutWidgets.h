#pragma once

#include "platform/gtk/ui/Container.h"
#include "platform/gtk/ui/Layouts.h"

#include <gtkmm/boxlayout.h>

// The containers that do nothing but arrange their children, one for each kind of node.

namespace gtk {

class LayersWidget final : public Container {
public:
    LayersWidget();
    void apply(const ui::Node& node) override;

private:
    Glib::RefPtr<LayersLayout> layout_;
};

class FrameWidget final : public Container {
public:
    FrameWidget();
    void apply(const ui::Node& node) override;

private:
    Glib::RefPtr<FrameLayout> layout_;
};

class PaddingWidget final : public Container {
public:
    PaddingWidget();
    void apply(const ui::Node& node) override;

private:
    Glib::RefPtr<PaddingLayout> layout_;
};

class StackWidget final : public Container {
public:
    explicit StackWidget(Gtk::Orientation orientation);
    void apply(const ui::Node& node) override;
    void place(ui::Widget& child, std::size_t index) override;

private:
    void align(Gtk::Widget& child) const;

    Gtk::Orientation orientation_;
    ui::Alignment alignment_ = ui::Alignment::center;
    Glib::RefPtr<Gtk::BoxLayout> layout_;
};

} // namespace gtk
