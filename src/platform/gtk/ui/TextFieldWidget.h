#pragma once

#include "platform/gtk/ui/NativeWidget.h"
#include "platform/ui/Options.h"

#include <gtkmm/text.h>

namespace gtk {

class TextFieldWidget final : public NativeWidget {
public:
    TextFieldWidget();
    ~TextFieldWidget() override;

    Gtk::Widget& native() override { return text_; }
    void apply(const ui::Node& node) override;

private:
    bool appear(const Glib::RefPtr<Gdk::FrameClock>& clock);
    bool pressKey(guint key, Gdk::ModifierType state);
    void followFocus();

    Gtk::Text text_;
    ui::TextFieldOptions options_;
    ui::Binding<std::string> binding_;
};

} // namespace gtk
