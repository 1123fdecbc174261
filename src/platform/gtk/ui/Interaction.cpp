#include "platform/gtk/ui/Interaction.h"

#include "platform/ui/ViewNodes.h"

#include <gdkmm/contentprovider.h>
#include <glibmm/value.h>
#include <gtkmm/dragsource.h>
#include <gtkmm/droptarget.h>
#include <gtkmm/eventcontrollerkey.h>
#include <gtkmm/eventcontrollermotion.h>
#include <gtkmm/gestureclick.h>
#include <gtkmm/widgetpaintable.h>
#include <utility>

namespace gtk {

void Interaction::apply(const ui::GroupNode& group)
{
    onHover_ = group.onHover;
    onTap_ = group.onTapGesture;
    onMiddleClick_ = group.onMiddleClick;
    onDrop_ = group.onDrop;
    dragPayload_ = group.dragPayload;

    if (onHover_ && !std::exchange(hasHover_, true))
        addHover();
    if (onTap_ && !std::exchange(hasTap_, true))
        addTap();
    if (onMiddleClick_ && !std::exchange(hasMiddleClick_, true))
        addClick(GDK_BUTTON_MIDDLE, onMiddleClick_);
    if (!dragPayload_.empty() && !std::exchange(hasDragSource_, true))
        addDragSource();
    if (onDrop_ && !std::exchange(hasDropTarget_, true))
        addDropTarget();
}

void Interaction::addHover()
{
    const auto motion = Gtk::EventControllerMotion::create();
    const auto report = [this](bool isInside) {
        if (onHover_)
            onHover_(isInside);
    };
    motion->signal_enter().connect([report](double, double) { report(true); });
    motion->signal_leave().connect([report] { report(false); });
    widget_.add_controller(motion);
}

void Interaction::addTap()
{
    addClick(GDK_BUTTON_PRIMARY, onTap_);

    // What can be clicked can be reached and pressed with the keyboard too.
    widget_.set_focusable();
    widget_.add_css_class("velmaro-pressable");
    const auto keys = Gtk::EventControllerKey::create();
    keys->signal_key_pressed().connect(
        [this](guint key, guint, Gdk::ModifierType) {
            const bool presses = key == GDK_KEY_space || key == GDK_KEY_Return
                || key == GDK_KEY_KP_Enter || key == GDK_KEY_ISO_Enter;
            if (!presses || !widget_.is_focus())
                return false;
            const auto tap = onTap_;
            if (tap)
                tap();
            return true;
        },
        false);
    widget_.add_controller(keys);
}

void Interaction::addClick(unsigned button, const std::function<void()>& action)
{
    const auto click = Gtk::GestureClick::create();
    click->set_button(button);
    click->signal_released().connect([this, &action](int, double x, double y) {
        const auto current = action; // which may take the widget away
        if (current && widget_.contains(x, y))
            current();
    });
    widget_.add_controller(click);
}

void Interaction::addDragSource()
{
    const auto source = Gtk::DragSource::create();
    source->set_actions(Gdk::DragAction::MOVE);
    source->signal_prepare().connect(
        [this, source = source.get()](double x, double y) {
            source->set_icon(
                Gtk::WidgetPaintable::create(widget_), static_cast<int>(x), static_cast<int>(y));
            Glib::Value<Glib::ustring> value;
            value.init(Glib::Value<Glib::ustring>::value_type());
            value.set(dragPayload_);
            return Gdk::ContentProvider::create(value);
        },
        false);
    widget_.add_controller(source);
}

void Interaction::addDropTarget()
{
    const auto target = Gtk::DropTarget::create(G_TYPE_STRING, Gdk::DragAction::MOVE);
    target->signal_drop().connect(
        [this](const Glib::ValueBase& value, double, double) {
            const auto drop = onDrop_; // which may take the widget away
            const auto* text = g_value_get_string(value.gobj());
            return drop && text && drop({text});
        },
        false);
    widget_.add_controller(target);
}

} // namespace gtk
