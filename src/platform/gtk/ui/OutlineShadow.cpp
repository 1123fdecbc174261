#include "platform/gtk/ui/OutlineShadow.h"

#include "platform/gtk/ui/ThemeColor.h"

namespace gtk {

OutlineShadow::OutlineShadow(
    Gtk::Snapshot& snapshot, const Gtk::Widget& widget, const ui::Shadow& shadow)
    : snapshot_(snapshot)
{
    const auto color = themeColor(widget, shadow.color);
    isVisible_ = color.get_alpha() > 0;
    if (!isVisible_)
        return;
    const GskShadow native = {
        .color = *color.gobj(),
        .dx = 0,
        .dy = static_cast<float>(shadow.y),
        .radius = static_cast<float>(shadow.radius),
    };
    gtk_snapshot_push_shadow(snapshot.gobj(), &native, 1);
}

OutlineShadow::~OutlineShadow()
{
    if (isVisible_)
        gtk_snapshot_pop(snapshot_.gobj());
}

} // namespace gtk
