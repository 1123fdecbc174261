#pragma once

#include "platform/gtk/ui/Container.h"
#include "platform/gtk/ui/FrameLayout.h"
#include "platform/gtk/ui/Interaction.h"
#include "platform/gtk/ui/LayersLayout.h"
#include "platform/gtk/ui/PaddingLayout.h"
#include "platform/ui/Accessibility.h"

#include <gtkmm/boxlayout.h>
#include <optional>
#include <string>

// The containers, one for each kind of node that has children.

namespace gtk {

class GroupWidget final : public Container {
public:
    GroupWidget();
    void apply(const ui::Node& node) override;

private:
    // What is told to the toolkit only when it changes.
    struct Look {
        double opacity = 1;
        bool allowsHitTesting = true;
        std::string help;
        ui::Accessibility accessibility;

        bool operator==(const Look&) const = default;
    };

    void apply(const Look& look);
    void applyAccessibility(const Look& look);

    Interaction interaction_;
    std::optional<Look> look_; // absent until there is one
    bool isScrolledToVisible_ = false;
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
    void place(ui::Widget& child, std::size_t index) override;

private:
    void align(Gtk::Widget& child) const;

    Gtk::Orientation orientation_;
    ui::Alignment alignment_ = ui::Alignment::center;
    Glib::RefPtr<Gtk::BoxLayout> layout_;
};

} // namespace gtk
