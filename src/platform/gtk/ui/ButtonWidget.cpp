#include "platform/gtk/ui/ButtonWidget.h"

#include "platform/gtk/ui/WidgetStyle.h"
#include "platform/ui/ViewNodes.h"

#include <gtkmm/binlayout.h>
#include <gtkmm/shortcut.h>
#include <gtkmm/shortcutaction.h>
#include <gtkmm/shortcuttrigger.h>
#include <gtkmm/window.h>

namespace gtk {

namespace {

void setClass(Gtk::Widget& widget, const char* name, bool isSet)
{
    if (isSet)
        widget.add_css_class(name);
    else
        widget.remove_css_class(name);
}

} // namespace

ButtonWidget::ButtonWidget()
{
    area().set_layout_manager(Gtk::BinLayout::create());
    button_.signal_map().connect([this] { appear(); });
    button_.signal_unmap().connect([this] { disappear(); });
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
    const auto& button = static_cast<const ui::ButtonNode&>(node);
    const auto& options = button.options;
    action_ = button.action;
    focusesWhenShown_ = options.focusesWhenShown;

    using enum ui::ButtonStyle;
    setClass(button_, "flat", options.style == plain || options.style == borderless);
    setClass(button_, "velmaro-plain", options.style == plain);
    setClass(button_, "suggested-action", options.style == borderedProminent || options.isTinted);
    button_.set_sensitive(options.isEnabled);
    setNames(button);
    setShortcut(options.shortcut);
}

void ButtonWidget::setNames(const ui::ButtonNode& button)
{
    const auto& options = button.options;
    const bool showsTitle = button.children.empty();
    if (showsTitle && std::string(button_.get_label()) != options.title)
        button_.set_label(options.title);
    else if (!showsTitle && !area().get_parent())
        button_.set_child(area());

    if (help_ != options.help) {
        help_ = options.help;
        button_.set_tooltip_text(help_);
    }
    const auto& name = help_.empty() ? options.title : help_;
    if (name_ != name) {
        name_ = name;
        setAccessibleName(button_, name_);
    }
}

// Windows have one default button themselves, which Return presses where nothing else takes it.
void ButtonWidget::appear()
{
    auto* window = dynamic_cast<Gtk::Window*>(button_.get_root());
    if (window && shortcut_ == ui::KeyboardShortcut::defaultAction)
        window->set_default_widget(button_);
    if (focusesWhenShown_)
        button_.grab_focus();
}

void ButtonWidget::disappear()
{
    auto* window = dynamic_cast<Gtk::Window*>(button_.get_root());
    if (window && window->get_default_widget() == &button_)
        window->unset_default_widget();
}

void ButtonWidget::setShortcut(std::optional<ui::KeyboardShortcut> shortcut)
{
    if (shortcut_ == shortcut)
        return;
    shortcut_ = shortcut;
    if (shortcuts_)
        button_.remove_controller(shortcuts_);
    shortcuts_.reset();
    if (shortcut != ui::KeyboardShortcut::cancelAction)
        return;

    shortcuts_ = Gtk::ShortcutController::create();
    shortcuts_->set_scope(Gtk::ShortcutScope::MANAGED); // holds wherever the focus is in the panel
    const auto click = [this](Gtk::Widget&, const Glib::VariantBase&) {
        return isReachable(button_) && button_.activate();
    };
    shortcuts_->add_shortcut(Gtk::Shortcut::create(
        Gtk::KeyvalTrigger::create(GDK_KEY_Escape), Gtk::CallbackAction::create(click)));
    button_.add_controller(shortcuts_);
}

} // namespace gtk
