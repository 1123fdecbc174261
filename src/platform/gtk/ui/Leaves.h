#pragma once

#include "platform/gtk/ui/NativeWidget.h"
#include "platform/ui/Options.h"

#include <gtkmm/label.h>
#include <gtkmm/picture.h>
#include <gtkmm/progressbar.h>
#include <gtkmm/separator.h>
#include <gtkmm/spinner.h>
#include <optional>

// The widgets without children, one for each kind of node.

namespace gtk {

class FillWidget final : public NativeWidget {
public:
    FillWidget();
    ~FillWidget() override;

    Gtk::Widget& native() override { return area_; }
    void apply(const ui::Node& node) override;

private:
    class Area final : public Gtk::Widget {
    public:
        Area();
        void setColor(const ui::Color& color);

    protected:
        void snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) override;

    private:
        ui::Color color_ = ui::Color::clear;
    };

    Area area_;
};

class TextWidget final : public NativeWidget {
public:
    ~TextWidget() override;

    Gtk::Widget& native() override { return label_; }
    void apply(const ui::Node& node) override;

private:
    Gtk::Label label_;
    std::optional<ui::TextOptions> options_;
};

class ApplicationIconWidget final : public NativeWidget {
public:
    ApplicationIconWidget();
    ~ApplicationIconWidget() override;

    Gtk::Widget& native() override { return picture_; }
    void apply(const ui::Node&) override { }

private:
    Gtk::Picture picture_;
};

class ProgressBarWidget final : public NativeWidget {
public:
    ProgressBarWidget();
    ~ProgressBarWidget() override;

    Gtk::Widget& native() override { return bar_; }
    void apply(const ui::Node& node) override;

private:
    Gtk::ProgressBar bar_;
};

class SpinnerWidget final : public NativeWidget {
public:
    SpinnerWidget();
    ~SpinnerWidget() override;

    Gtk::Widget& native() override { return spinner_; }
    void apply(const ui::Node&) override { }

private:
    Gtk::Spinner spinner_;
};

// The room that a spacer takes; it grows along its stack.
class SpacerRoom final : public Gtk::Widget {
public:
    SpacerRoom();
};

class SpacerWidget final : public NativeWidget {
public:
    ~SpacerWidget() override;

    Gtk::Widget& native() override { return room_; }
    void apply(const ui::Node& node) override;

private:
    SpacerRoom room_;
};

class DividerWidget final : public NativeWidget {
public:
    DividerWidget();
    ~DividerWidget() override;

    Gtk::Widget& native() override { return line_; }
    void apply(const ui::Node&) override { }

private:
    Gtk::Separator line_;
};

} // namespace gtk
