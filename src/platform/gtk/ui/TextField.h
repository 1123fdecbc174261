#pragma once

#include "platform/appkit/NSTextField.h"
#include "platform/gtk/ui/NativeWidget.h"

#include <gtkmm/text.h>

namespace gtk {

// A line of text to edit, on GTK's own.
class TextField final : public platform::NSTextField, public NativeView {
public:
    TextField();
    ~TextField() override;

    platform::NSWindow* window() const override;
    Gtk::Widget& nativeWidget() override { return text_; }
    bool fillsHeight() const override { return false; }

    std::string stringValue() const override { return text_.get_text(); }
    void setStringValue(const std::string& text) override;
    void setPlaceholder(const std::string& text) override;
    void setFontSize(double points) override;
    void setDelegate(std::weak_ptr<platform::NSTextFieldDelegate> delegate) override
    {
        delegate_ = std::move(delegate);
    }
    bool makeFirstResponder() override;

private:
    bool command(guint key, Gdk::ModifierType state);

    Gtk::Text text_;
    std::weak_ptr<platform::NSTextFieldDelegate> delegate_;
    bool isTypedByUser_ = true;
};

} // namespace gtk
