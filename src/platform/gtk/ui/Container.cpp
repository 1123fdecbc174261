#include "platform/gtk/ui/Container.h"

#include "platform/gtk/ui/TransitionAnimation.h"

#include <algorithm>

namespace gtk {

namespace {

constexpr auto expandingChildKey = "velmaro-expanding-child";

// A container expands when something in it does, or when the one child that counts does.
void computeExpand(GtkWidget* widget, gboolean* horizontal, gboolean* vertical)
{
    const auto counting = GPOINTER_TO_INT(g_object_get_data(G_OBJECT(widget), expandingChildKey));
    int number = 0;
    for (auto* child = gtk_widget_get_first_child(widget); child;
         child = gtk_widget_get_next_sibling(child)) {
        if (counting && ++number != counting)
            continue;
        *horizontal = *horizontal || gtk_widget_compute_expand(child, GTK_ORIENTATION_HORIZONTAL);
        *vertical = *vertical || gtk_widget_compute_expand(child, GTK_ORIENTATION_VERTICAL);
    }
}

ui::Transition transitionOf(const ui::Widget& widget)
{
    const auto* container = dynamic_cast<const Container*>(&widget);
    return container ? container->transition() : ui::Transition();
}

} // namespace

Container::Area::Area()
    : Glib::ObjectBase("VelmaroArea")
{
    GTK_WIDGET_GET_CLASS(gobj())->compute_expand = computeExpand; // has no counterpart in gtkmm
}

Container::Area::~Area()
{
    while (auto* child = get_first_child())
        child->unparent();
    if (get_parent())
        unparent();
}

Container::Container() = default;

Container::~Container()
{
    exits_.clear(); // while there is an area to leave
}

void Container::setExpandingChild(std::size_t index)
{
    auto* number = GINT_TO_POINTER(static_cast<int>(index) + 1);
    g_object_set_data(G_OBJECT(area_.gobj()), expandingChildKey, number);
}

void Container::place(ui::Widget& child, std::size_t index)
{
    auto& widget = nativeOf(child);
    const bool isNew = std::erase(children_, &widget) == 0;

    if (index == 0)
        widget.insert_at_start(area_);
    else
        widget.insert_after(area_, *children_[index - 1]);
    children_.insert(children_.begin() + static_cast<std::ptrdiff_t>(index), &widget);

    const auto transition = transitionOf(child);
    if (isNew && transition != ui::Transition() && isAnimated(area_))
        animateTransition(widget, transition, 0, 1);
}

void Container::remove(ui::Widget& child, std::shared_ptr<void> owner)
{
    auto& widget = nativeOf(child);
    std::erase(children_, &widget);

    const auto transition = transitionOf(child);
    if (transition == ui::Transition() || !isAnimated(area_)) {
        widget.unparent();
        return;
    }
    auto exit = std::make_shared<ExitTransition>(widget, std::move(owner));
    exits_.push_back(exit);
    exit->begin(transition, [this](const ExitTransition& departed) {
        std::erase_if(exits_, [&](const auto& exit) { return exit.get() == &departed; });
    });
}

} // namespace gtk
