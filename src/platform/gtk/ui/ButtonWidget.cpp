#include "platform/gtk/ui/ButtonWidget.h"

#include "platform/gtk/ui/WidgetStyle.h"
#include "platform/ui/ViewNodes.h"

#include <gtkmm/binlayout.h>
#include <gtkmm/shortcut.h>
#include <gtkmm/shortcutaction.h>
#include <gtkmm/shortcuttrigger.h>

namespace gtk {

namespace {

void setClass(Gtk::Widget& widget, const char* name, bool isSet)
{
    if (isSet)
        widget.add_css_class(name);
    else
        widget.remove_css_class(name);
}

guint keyOf(ui::KeyboardShortcut shortcut)
{
    return shortcut == ui::KeyboardShortcut::cancelAction ? GDK_KEY_Escape : GDK_KEY_Return;
}

} // namespace

ButtonWidget::ButtonWidget()
{
    area().set_layout_manager(Gtk::BinLayout::create());
    button_.set_child(area());
    button_.signal_clicked().connect([this] {
        const auto action = action_; // which may take this widget away
        if (action)
            action();
    });
}

ButtonWidget::~ButtonWidget()
{
    button_.unset_child();
    if (button_.get_parent())
        button_.unparent();
}

void ButtonWidget::apply(const ui::Node& node)
{
    const auto& [options, action] = std::tie(static_cast<const ui::ButtonNode&>(node).options,
        static_cast<const ui::ButtonNode&>(node).action);
    action_ = action;

    using enum ui::ButtonStyle;
    setClass(button_, "flat", options.style == plain || options.style == borderless);
    setClass(button_, "velmaro-plain", options.style == plain);
    setClass(button_, "suggested-action", options.style == borderedProminent || options.isTinted);
    button_.set_sensitive(options.isEnabled);
    if (help_ != options.help) {
        help_ = options.help;
        button_.set_tooltip_text(help_);
        setAccessibleName(button_, help_);
    }
    setShortcut(options.shortcut);
}

void ButtonWidget::setShortcut(std::optional<ui::KeyboardShortcut> shortcut)
{
    if (shortcut_ == shortcut)
        return;
    shortcut_ = shortcut;
    if (shortcuts_)
        button_.remove_controller(shortcuts_);
    shortcuts_.reset();
    if (!shortcut)
        return;

    shortcuts_ = Gtk::ShortcutController::create();
    shortcuts_->set_scope(Gtk::ShortcutScope::MANAGED); // holds wherever the focus is in the panel
    const auto click = [this](Gtk::Widget&, const Glib::VariantBase&) {
        return isReachable(button_) && button_.activate();
    };
    shortcuts_->add_shortcut(Gtk::Shortcut::create(
        Gtk::KeyvalTrigger::create(keyOf(*shortcut)), Gtk::CallbackAction::create(click)));
    button_.add_controller(shortcuts_);
}

} // namespace gtk
