#include "platform/gtk/ui/TextField.h"

#include "platform/gtk/ui/NativeWindow.h"
#include "platform/gtk/ui/WidgetStyle.h"

#include <gtkmm/eventcontrollerkey.h>

namespace gtk {

using platform::NSTextCommand;

TextField::TextField()
{
    setAccessibleAsField(text_);
    text_.set_hexpand();
    text_.property_text().signal_changed().connect([this] {
        const auto delegate = delegate_.lock();
        if (isTypedByUser_ && delegate)
            delegate->controlTextDidChange(*this);
    });

    const auto keys = Gtk::EventControllerKey::create();
    keys->set_propagation_phase(Gtk::PropagationPhase::CAPTURE);
    keys->signal_key_pressed().connect(
        [this](guint key, guint, Gdk::ModifierType state) { return command(key, state); }, false);
    text_.add_controller(keys);
}

TextField::~TextField()
{
    if (text_.get_parent())
        text_.unparent();
}

platform::NSWindow* TextField::window() const
{
    return platformWindow(text_);
}

void TextField::setStringValue(const std::string& text)
{
    if (text == stringValue())
        return;
    isTypedByUser_ = false;
    text_.set_text(text);
    text_.set_position(-1);
    isTypedByUser_ = true;
}

void TextField::setPlaceholder(const std::string& text)
{
    text_.set_placeholder_text(text);
    setAccessibleName(text_, text);
}

void TextField::setFontSize(double points)
{
    auto attributes = fontAttributes({.size = points});
    text_.set_attributes(attributes);
}

bool TextField::makeFirstResponder()
{
    return window() && isReachable(text_) && text_.grab_focus();
}

bool TextField::command(guint key, Gdk::ModifierType state)
{
    const auto delegate = delegate_.lock();
    if (!delegate)
        return false;
    const bool shift = (state & Gdk::ModifierType::SHIFT_MASK) == Gdk::ModifierType::SHIFT_MASK;
    switch (key) {
    case GDK_KEY_Return:
    case GDK_KEY_KP_Enter:
    case GDK_KEY_ISO_Enter:
        return delegate->controlDoCommandBySelector(*this, NSTextCommand::insertNewline, {shift});
    case GDK_KEY_Escape:
        return delegate->controlDoCommandBySelector(*this, NSTextCommand::cancelOperation, {shift});
    default:
        return false;
    }
}

} // namespace gtk
