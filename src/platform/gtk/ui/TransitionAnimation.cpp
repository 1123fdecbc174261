#include "platform/gtk/ui/TransitionAnimation.h"

#include <algorithm>
#include <cmath>
#include <glibmm/main.h>
#include <gtkmm/settings.h>

namespace gtk {

namespace {

constexpr auto movementKey = "velmaro-movement";

// Stands with a child while it moves.
struct Movement {
    ui::Edge edge;
    double presence;
};

double easeOut(double progress)
{
    const double rest = 1 - progress;
    return 1 - rest * rest * rest;
}

void setMovement(Gtk::Widget& child, ui::Edge edge, double presence)
{
    g_object_set_data_full(G_OBJECT(child.gobj()), movementKey, new Movement{edge, presence},
        [](gpointer data) { delete static_cast<Movement*>(data); });
    if (auto* parent = child.get_parent()) {
        parent->set_overflow(Gtk::Overflow::HIDDEN); // it comes from behind the edge
        parent->queue_allocate();
    }
}

void endMovement(Gtk::Widget& child)
{
    g_object_set_data(G_OBJECT(child.gobj()), movementKey, nullptr);
    if (auto* parent = child.get_parent()) {
        parent->set_overflow(Gtk::Overflow::VISIBLE);
        parent->queue_allocate();
    }
}

} // namespace

bool isAnimated(const Gtk::Widget& widget)
{
    const auto settings = Gtk::Settings::get_default();
    return widget.get_mapped() && settings && settings->property_gtk_enable_animations();
}

void animateTransition(Gtk::Widget& child, const ui::Transition& transition, double from, double to,
    std::function<void()> completion)
{
    const double fullOpacity = std::max(child.get_opacity(), 0.0);
    const auto show = [&child, transition, fullOpacity](double presence) {
        if (transition.fades)
            child.set_opacity(fullOpacity * presence);
        if (transition.movesFrom)
            setMovement(child, *transition.movesFrom, presence);
    };
    show(from);
    const auto start = g_get_monotonic_time();
    child.add_tick_callback([=, &child](const Glib::RefPtr<Gdk::FrameClock>&) {
        const double elapsed = static_cast<double>(g_get_monotonic_time() - start) / G_USEC_PER_SEC;
        const double progress = std::min(elapsed / transition.duration, 1.0);
        show(from + (to - from) * easeOut(progress));
        if (progress < 1)
            return true;
        if (transition.movesFrom && to >= 1)
            endMovement(child);
        if (completion)
            completion();
        return false;
    });
}

Offset transitionOffset(const Gtk::Widget& child, int width, int height)
{
    const auto* movement = static_cast<const Movement*>(
        g_object_get_data(G_OBJECT(const_cast<GObject*>(G_OBJECT(child.gobj()))), movementKey));
    if (!movement)
        return {};
    const auto distance = [&](int extent) {
        return static_cast<int>(std::lround((1 - movement->presence) * extent));
    };
    switch (movement->edge) {
    case ui::Edge::top:
        return {0, -distance(height)};
    case ui::Edge::bottom:
        return {0, distance(height)};
    case ui::Edge::leading:
        return {-distance(width), 0};
    case ui::Edge::trailing:
        return {distance(width), 0};
    }
    return {};
}

ExitTransition::ExitTransition(Gtk::Widget& widget, std::shared_ptr<void> owner)
    : widget_(widget)
    , owner_(std::move(owner))
{
    widget_.set_can_target(false);
}

ExitTransition::~ExitTransition()
{
    widget_.unparent();
}

void ExitTransition::begin(
    const ui::Transition& transition, std::function<void(const ExitTransition&)> completion)
{
    animateTransition(widget_, transition, 1, 0,
        [weakSelf = weak_from_this(), completion = std::move(completion)] {
            // The widget cannot go inside its own tick.
            Glib::signal_idle().connect_once([weakSelf, completion] {
                if (const auto self = weakSelf.lock())
                    completion(*self);
            });
        });
}

} // namespace gtk
