#include "platform/gtk/ui/GroupWidget.h"

#include "platform/gtk/ui/ScrollAreaWidget.h"
#include "platform/gtk/ui/WidgetStyle.h"
#include "platform/ui/ViewNodes.h"

#include <algorithm>
#include <gtkmm/binlayout.h>
#include <utility>

namespace gtk {

namespace {

// To be called before anybody has asked for the role.
void setAccessibleRole(Gtk::Widget& widget, ui::Accessibility::Role role)
{
    constexpr std::pair<ui::Accessibility::Role, GtkAccessibleRole> roles[] = {
        {ui::Accessibility::Role::automatic, GTK_ACCESSIBLE_ROLE_GROUP},
        {ui::Accessibility::Role::tabList, GTK_ACCESSIBLE_ROLE_TAB_LIST},
        {ui::Accessibility::Role::tab, GTK_ACCESSIBLE_ROLE_TAB},
        {ui::Accessibility::Role::toolbar, GTK_ACCESSIBLE_ROLE_TOOLBAR},
        {ui::Accessibility::Role::dialog, GTK_ACCESSIBLE_ROLE_DIALOG},
    };
    const auto found =
        std::ranges::find_if(roles, [&](const auto& entry) { return entry.first == role; });
    g_object_set(widget.gobj(), "accessible-role", found->second, nullptr);
}

} // namespace

GroupWidget::GroupWidget()
    : interaction_(native())
{
    native().set_layout_manager(Gtk::BinLayout::create());
}

void GroupWidget::apply(const ui::Node& node)
{
    const auto& group = static_cast<const ui::GroupNode&>(node);
    setTransition(group.transition);
    interaction_.apply(group);
    const Look look{group.opacity, group.allowsHitTesting, group.help, group.accessibility};
    if (look_ != look)
        apply(look);

    if (group.isScrolledToVisible && !isScrolledToVisible_)
        scrollToVisible(native());
    isScrolledToVisible_ = group.isScrolledToVisible;
}

void GroupWidget::apply(const Look& look)
{
    native().set_opacity(look.opacity);
    native().set_can_target(look.allowsHitTesting);
    native().set_can_focus(look.allowsHitTesting);
    if (look.help != (look_ ? look_->help : std::string()))
        native().set_tooltip_text(look.help);
    applyAccessibility(look);
    look_ = look;
}

void GroupWidget::applyAccessibility(const Look& look)
{
    auto* accessible = GTK_ACCESSIBLE(native().gobj());
    if (!look_)
        setAccessibleRole(native(), look.accessibility.role);
    const auto& label = look.accessibility.label.empty() ? look.help : look.accessibility.label;
    if (!label.empty())
        setAccessibleName(native(), label);
    if (look.accessibility.role == ui::Accessibility::Role::tab) {
        gtk_accessible_update_state(accessible, GTK_ACCESSIBLE_STATE_SELECTED,
            static_cast<gboolean>(look.accessibility.isSelected), -1);
    }
    // What cannot be seen is not read out either.
    gtk_accessible_update_state(
        accessible, GTK_ACCESSIBLE_STATE_HIDDEN, static_cast<gboolean>(look.opacity <= 0), -1);
}

} // namespace gtk
