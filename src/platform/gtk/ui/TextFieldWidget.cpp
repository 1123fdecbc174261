#include "platform/gtk/ui/TextFieldWidget.h"

#include "platform/gtk/ui/WidgetStyle.h"
#include "platform/ui/ViewNodes.h"

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
    g_signal_connect_swapped(text_.gobj(), "activate", G_CALLBACK(+[](TextFieldWidget* self) {
        if (const auto submit = self->options_.onSubmit)
            submit();
    }),
        this);
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
    if (options_.focusesWhenShown)
        text_.grab_focus();
    else
        followFocus();
    return false;
}

void TextFieldWidget::followFocus()
{
    if (options_.isFocused && options_.isFocused->get() && text_.get_mapped() && !text_.has_focus())
        text_.grab_focus();
}

} // namespace gtk
