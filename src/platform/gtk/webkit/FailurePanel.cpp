#include "platform/gtk/webkit/FailurePanel.h"

namespace gtk {

namespace {

const char* pictureOf(LoadFailure::Reason reason)
{
    const bool isWarning =
        reason == LoadFailure::Reason::certificate || reason == LoadFailure::Reason::processDied;
    return isWarning ? "dialog-warning-symbolic" : "network-server-symbolic";
}

void tell(Gtk::Widget& widget, const Glib::ustring& text)
{
    gtk_accessible_update_property(
        GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_PROPERTY_LABEL, text.c_str(), -1);
}

} // namespace

FailurePanel::FailurePanel()
    : content_(Gtk::Orientation::VERTICAL, 12)
    , button_("Try Again")
{
    g_object_set(gobj(), "accessible-role", GTK_ACCESSIBLE_ROLE_ALERT, nullptr);
    add_css_class("background");
    set_expand();

    picture_.set_pixel_size(64);
    picture_.add_css_class("dim-label");
    picture_.set_margin_bottom(6);

    title_.add_css_class("title-2");

    explanation_.set_wrap();
    explanation_.set_justify(Gtk::Justification::CENTER);
    explanation_.set_max_width_chars(52);

    address_.set_ellipsize(Pango::EllipsizeMode::MIDDLE);
    address_.set_max_width_chars(60);
    address_.set_selectable();
    address_.set_focusable(false); // Tab goes to the button
    address_.set_opacity(0.75);

    button_.set_halign(Gtk::Align::CENTER);
    button_.set_margin_top(12);
    button_.add_css_class("suggested-action");

    content_.set_halign(Gtk::Align::CENTER);
    content_.set_valign(Gtk::Align::CENTER);
    content_.set_hexpand();
    content_.set_margin(24);
    for (Gtk::Widget* part : {static_cast<Gtk::Widget*>(&picture_),
             static_cast<Gtk::Widget*>(&title_), static_cast<Gtk::Widget*>(&explanation_),
             static_cast<Gtk::Widget*>(&address_), static_cast<Gtk::Widget*>(&button_)})
        content_.append(*part);
    append(content_);
}

void FailurePanel::show(const LoadFailure& failure)
{
    tell(*this, failure.title());
    picture_.set_from_icon_name(pictureOf(failure.reason));
    title_.set_text(failure.title());
    explanation_.set_text(failure.explanation());
    address_.set_text(failure.address);
    address_.set_tooltip_text(failure.address);
    button_.set_label("Try Again");
}

void FailurePanel::showAttempt()
{
    button_.set_label("Trying…");
}

} // namespace gtk
