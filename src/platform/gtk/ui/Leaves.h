#pragma once

#include "platform/gtk/ui/NativeWidget.h"
#include "platform/ui/Color.h"

#include <gtkmm/label.h>
#include <gtkmm/picture.h>
#include <gtkmm/progressbar.h>

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

} // namespace gtk
