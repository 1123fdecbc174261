#pragma once

#include "platform/gtk/ui/NativeWidget.h"
#include "platform/ui/Options.h"

#include <string>

// The widgets that paint themselves.

namespace gtk {

class SymbolWidget final : public NativeWidget {
public:
    ~SymbolWidget() override;

    Gtk::Widget& native() override { return area_; }
    void apply(const ui::Node& node) override;

private:
    class Area final : public Gtk::Widget {
    public:
        Area();
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

    Area area_;
};

class RoundedRectangleWidget final : public NativeWidget {
public:
    ~RoundedRectangleWidget() override;

    Gtk::Widget& native() override { return area_; }
    void apply(const ui::Node& node) override;

private:
    class Area final : public Gtk::Widget {
    public:
        Area();
        void set(const ui::ShapeOptions& options);

    protected:
        void snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) override;

    private:
        ui::ShapeOptions options_;
    };

    Area area_;
};

} // namespace gtk
