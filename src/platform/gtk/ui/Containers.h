#pragma once

#include "platform/gtk/ui/Container.h"
#include "platform/gtk/ui/FrameLayout.h"
#include "platform/gtk/ui/LayersLayout.h"
#include "platform/gtk/ui/PaddingLayout.h"

#include <gtkmm/boxlayout.h>

// The containers, one for each kind of node that has children.

namespace gtk {

class GroupWidget final : public Container {
public:
    GroupWidget();
    void apply(const ui::Node& node) override;
};

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

private:
    Glib::RefPtr<Gtk::BoxLayout> layout_;
};

} // namespace gtk
