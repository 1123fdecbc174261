#include "platform/gtk/ui/SheetWidget.h"

#include "platform/gtk/ui/Layouts.h"
#include "platform/ui/ViewNodes.h"

#include <gtkmm/eventcontrollerkey.h>
#include <gtkmm/root.h>

namespace gtk {

namespace {

// The views that the sheet lies over: its elder siblings.
void setReachable(Gtk::Widget& sheet, bool isReachable)
{
    for (auto* sibling = sheet.get_prev_sibling(); sibling; sibling = sibling->get_prev_sibling()) {
        sibling->set_can_target(isReachable);
        sibling->set_can_focus(isReachable);
    }
}

} // namespace

SheetWidget::SheetWidget()
{
    g_weak_ref_init(&previousFocus_, nullptr);
    native().set_layout_manager(LayersLayout::create());
    native().set_expand();
    native().add_css_class("velmaro-sheet");
    native().signal_map().connect([this] { takeFocus(); });
    native().signal_unmap().connect([this] { returnFocus(); });

    const auto keys = Gtk::EventControllerKey::create();
    keys->signal_key_pressed().connect(
        [this](guint key, guint, Gdk::ModifierType) { return keepFocusInside(key); }, false);
    native().add_controller(keys);
}

SheetWidget::~SheetWidget()
{
    g_weak_ref_clear(&previousFocus_);
}

void SheetWidget::apply(const ui::Node& node)
{
    onDismiss_ = static_cast<const ui::SheetNode&>(node).onDismiss;
}

void SheetWidget::place(ui::Widget& child, std::size_t index)
{
    Container::place(child, index);
    nativeOf(child).add_css_class("velmaro-sheet-panel");
}

void SheetWidget::takeFocus()
{
    auto* focus = gtk_root_get_focus(gtk_widget_get_root(native().gobj()));
    if (focus && !gtk_widget_is_ancestor(focus, native().gobj()))
        g_weak_ref_set(&previousFocus_, focus);
    setReachable(native(), false);
    if (!focus || !gtk_widget_is_ancestor(focus, native().gobj()))
        native().child_focus(Gtk::DirectionType::TAB_FORWARD);
}

void SheetWidget::returnFocus()
{
    setReachable(native(), true);
    if (auto* focus = static_cast<GtkWidget*>(g_weak_ref_get(&previousFocus_))) {
        if (isReachable(*Glib::wrap(focus)))
            gtk_widget_grab_focus(focus);
        g_object_unref(focus);
    }
}

bool SheetWidget::keepFocusInside(guint key)
{
    if (key == GDK_KEY_Escape) {
        if (const auto dismiss = onDismiss_)
            dismiss();
        return true;
    }
    const bool isBackwards = key == GDK_KEY_ISO_Left_Tab;
    if (key != GDK_KEY_Tab && !isBackwards)
        return false;
    const auto direction =
        isBackwards ? Gtk::DirectionType::TAB_BACKWARD : Gtk::DirectionType::TAB_FORWARD;
    if (!native().child_focus(direction)) { // past the last one: round to the first
        gtk_root_set_focus(gtk_widget_get_root(native().gobj()), nullptr);
        native().child_focus(direction);
    }
    return true;
}

} // namespace gtk
