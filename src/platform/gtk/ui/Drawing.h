#pragma once

#include "platform/gtk/ui/NativeWidget.h"
#include "platform/ui/Options.h"

#include <string>

// The widgets that paint themselves, each on an area that knows how.

namespace gtk {

class FillArea final : public Gtk::Widget {
public:
    FillArea();
    void set(const ui::Color& color);

protected:
    void snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) override;

private:
    ui::Color color_ = ui::Color::clear;
};

class FillWidget final : public LeafWidget<FillArea> {
public:
    void apply(const ui::Node& node) override;
};

class LinearGradientArea final : public Gtk::Widget {
public:
    LinearGradientArea();
    void set(const ui::GradientOptions& options);

protected:
    void snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) override;

private:
    ui::GradientOptions options_;
};

class LinearGradientWidget final : public LeafWidget<LinearGradientArea> {
public:
    void apply(const ui::Node& node) override;
};

class SymbolArea final : public Gtk::Widget {
public:
    SymbolArea();
    void set(const std::string& name, const ui::SymbolOptions& options);

protected:
    void measure_vfunc(Gtk::Orientation orientation, int forSize, int& minimum, int& natural,
        int& minimumBaseline, int& naturalBaseline) const override;
    void snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) override;

private:
    int extent() const;

    std::string name_;
    ui::SymbolOptions options_;
};

class SymbolWidget final : public LeafWidget<SymbolArea> {
public:
    void apply(const ui::Node& node) override;
};

// The application's picture, as large as its area lets it be.
class ApplicationIconArea final : public Gtk::Widget {
public:
    ApplicationIconArea();
    void set(const ui::ApplicationIconOptions& options);

protected:
    void measure_vfunc(Gtk::Orientation orientation, int forSize, int& minimum, int& natural,
        int& minimumBaseline, int& naturalBaseline) const override;
    void snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) override;

private:
    ui::ApplicationIconOptions options_;
};

class ApplicationIconWidget final : public LeafWidget<ApplicationIconArea> {
public:
    void apply(const ui::Node& node) override;
};

class RoundedRectangleArea final : public Gtk::Widget {
public:
    RoundedRectangleArea();
    void set(const ui::ShapeOptions& options);

protected:
    void snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) override;

private:
    ui::ShapeOptions options_;
};

class RoundedRectangleWidget final : public LeafWidget<RoundedRectangleArea> {
public:
    void apply(const ui::Node& node) override;
};

} // namespace gtk
