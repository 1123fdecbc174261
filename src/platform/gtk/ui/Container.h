#pragma once

#include "platform/gtk/ui/NativeWidget.h"
#include "platform/ui/Transition.h"

#include <memory>
#include <vector>

namespace gtk {

class ExitTransition;

// A widget with children, which its layout manager arranges.
class Container : public NativeWidget {
public:
    Container();
    ~Container() override;

    Gtk::Widget& native() override { return area_; }

    void place(ui::Widget& child, std::size_t index) override;
    void remove(ui::Widget& child, std::shared_ptr<void> owner) override;

    // How this widget comes and goes when it is a child.
    const ui::Transition& transition() const { return transition_; }

protected:
    // Where the children stand: the widget itself, or something in it.
    Gtk::Widget& area() { return area_; }

    // Of all children, only the one at `index` says whether the widget expands.
    void setExpandingChild(std::size_t index);

    void setTransition(const ui::Transition& transition) { transition_ = transition; }

private:
    // A widget without a look or behaviour of its own.
    class Area : public Gtk::Widget {
    public:
        Area();
        ~Area() override;
    };

    Area area_;
    ui::Transition transition_;
    std::vector<Gtk::Widget*> children_; // those on their way out are not among them
    std::vector<std::shared_ptr<ExitTransition>> exits_;
};

} // namespace gtk
