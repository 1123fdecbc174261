#pragma once

#include "platform/gtk/ui/NativeWidget.h"
#include "platform/ui/Options.h"

#include <gtkmm/checkbutton.h>
#include <gtkmm/image.h>
#include <gtkmm/label.h>
#include <gtkmm/progressbar.h>
#include <gtkmm/scrolledwindow.h>
#include <gtkmm/separator.h>
#include <gtkmm/spinner.h>
#include <gtkmm/textview.h>
#include <optional>

// The widgets without children that GTK draws, one for each kind of node.

namespace gtk {

class TextWidget final : public LeafWidget<Gtk::Label> {
public:
    void apply(const ui::Node& node) override;

private:
    std::optional<ui::TextOptions> options_;
};

class IconWidget final : public LeafWidget<Gtk::Image> {
public:
    void apply(const ui::Node& node) override;
};

class ToggleWidget final : public LeafWidget<Gtk::CheckButton> {
public:
    ToggleWidget();
    void apply(const ui::Node& node) override;

private:
    ui::Binding<bool> isOn_;
};

class TextAreaWidget final : public LeafWidget<Gtk::ScrolledWindow> {
public:
    TextAreaWidget();
    void apply(const ui::Node& node) override;

private:
    Gtk::TextView text_;
};

class ProgressBarWidget final : public LeafWidget<Gtk::ProgressBar> {
public:
    ProgressBarWidget();
    void apply(const ui::Node& node) override;
};

class SpinnerWidget final : public LeafWidget<Gtk::Spinner> {
public:
    SpinnerWidget();
    void apply(const ui::Node&) override { }
};

// The room that a spacer takes; it grows along its stack.
class SpacerRoom final : public Gtk::Widget {
public:
    SpacerRoom();
};

class SpacerWidget final : public LeafWidget<SpacerRoom> {
public:
    void apply(const ui::Node& node) override;
};

class DividerWidget final : public LeafWidget<Gtk::Separator> {
public:
    DividerWidget();
    void apply(const ui::Node&) override { }
};

} // namespace gtk
