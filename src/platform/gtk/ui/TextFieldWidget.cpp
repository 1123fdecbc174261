#include "platform/gtk/ui/TextFieldWidget.h"

#include "platform/gtk/ui/WidgetStyle.h"
#include "platform/ui/ViewNodes.h"

#include <gtkmm/eventcontrollerkey.h>

namespace gtk {

TextFieldWidget::TextFieldWidget()
{
    setAccessibleAsField(text_);
    text_.set_hexpand();
    text_.property_text().signal_changed().connect([this] {
        const std::string text = text_.get_text();
        if (binding_.set && text != binding_.get())
            binding_.set(text);
    });
    const auto keys = Gtk::EventControllerKey::create(); // after those of an input method
    keys->signal_key_pressed().connect(
        [this](guint key, guint, Gdk::ModifierType state) { return pressKey(key, state); }, false);
    text_.add_controller(keys);
    text_.property_has_focus().signal_changed().connect([this] {
        if (options_.isFocused)
            options_.isFocused->set(text_.has_focus());
    });
    // Once the whole panel around it is there.
    text_.signal_map().connect(
        [this] { text_.add_tick_callback(sigc::mem_fun(*this, &TextFieldWidget::appear)); });
}

TextFieldWidget::~TextFieldWidget()
{
    options_ = {}; // losing the focus on the way out is nobody's business
    binding_ = {};
    if (text_.get_parent())
        text_.unparent();
}

void TextFieldWidget::apply(const ui::Node& node)
{
    const auto& field = static_cast<const ui::TextFieldNode&>(node);
    options_ = field.options;
    binding_ = field.text;
    text_.set_placeholder_text(options_.placeholder);
    setAccessibleName(text_, options_.placeholder);
    auto attributes = fontAttributes(options_.font);
    text_.set_attributes(attributes);

    // Only what differs: an echo must not move the caret.
    const auto wanted = binding_.get();
    if (std::string(text_.get_text()) != wanted) {
        text_.set_text(wanted);
        text_.set_position(-1);
    }
    followFocus();
}

bool TextFieldWidget::appear(const Glib::RefPtr<Gdk::FrameClock>&)
{
    if (!options_.focusesWhenShown)
        followFocus();
    else if (isReachable(text_))
        text_.grab_focus();
    return false;
}

bool TextFieldWidget::pressKey(guint key, Gdk::ModifierType state)
{
    const auto options = options_; // an action may take this widget away
    switch (key) {
    case GDK_KEY_Return:
    case GDK_KEY_KP_Enter:
    case GDK_KEY_ISO_Enter:
        if (options.onSubmit)
            options.onSubmit(
                {.shift = (state & Gdk::ModifierType::SHIFT_MASK) != Gdk::ModifierType()});
        return options.onSubmit != nullptr;
    case GDK_KEY_Escape:
        if (options.onCancel)
            options.onCancel();
        return options.onCancel != nullptr;
    default:
        return false;
    }
}

void TextFieldWidget::followFocus()
{
    if (options_.isFocused && options_.isFocused->get() && text_.get_mapped() && !text_.has_focus())
        text_.grab_focus();
}

} // namespace gtk
