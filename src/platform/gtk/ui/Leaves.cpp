#include "platform/gtk/ui/Leaves.h"

#include "platform/gtk/ui/WidgetStyle.h"
#include "platform/ui/ViewNodes.h"

#include <cmath>

namespace gtk {

namespace {

Pango::Alignment lineAlignment(ui::Alignment alignment)
{
    switch (alignment) {
    case ui::Alignment::leading:
        return Pango::Alignment::LEFT;
    case ui::Alignment::trailing:
        return Pango::Alignment::RIGHT;
    default:
        return Pango::Alignment::CENTER;
    }
}

void addForeground(Pango::AttrList& attributes, const ui::Color& color)
{
    const auto channel = [](double value) {
        return static_cast<guint16>(std::lround(value * 65535));
    };
    auto foreground = Pango::Attribute::create_attr_foreground(
        channel(color.red), channel(color.green), channel(color.blue));
    auto alpha = Pango::Attribute::create_attr_foreground_alpha(channel(color.opacity));
    attributes.insert(foreground);
    attributes.insert(alpha);
}

// Classes of the style sheet, for the colours that texts have from the theme.
std::vector<Glib::ustring> themeClasses(const ui::Color& color)
{
    switch (color.role) {
    case ui::Color::Role::accent:
        return {"velmaro-accent"};
    case ui::Color::Role::secondaryLabel:
        return {"velmaro-secondary-label"};
    default:
        return {};
    }
}

} // namespace

void TextWidget::apply(const ui::Node& node)
{
    const auto& text = static_cast<const ui::TextNode&>(node);
    if (std::string(leaf().get_text()) != text.text)
        leaf().set_text(text.text);
    if (options_ == text.options)
        return;
    options_ = text.options;

    auto attributes = fontAttributes(options_->font);
    if (options_->color.role == ui::Color::Role::fixed)
        addForeground(attributes, options_->color);
    leaf().set_attributes(attributes);
    leaf().set_css_classes(themeClasses(options_->color));
    leaf().set_wrap(options_->wraps);
    leaf().set_natural_wrap_mode(Gtk::NaturalWrapMode::NONE); // one line where there is room
    leaf().set_ellipsize(options_->wraps ? Pango::EllipsizeMode::NONE : Pango::EllipsizeMode::END);

    const auto alignment = lineAlignment(options_->alignment);
    const double place = alignment == Pango::Alignment::LEFT ? 0
        : alignment == Pango::Alignment::RIGHT               ? 1
                                                             : 0.5;
    leaf().set_xalign(static_cast<float>(place));
    leaf().set_justify(alignment == Pango::Alignment::LEFT ? Gtk::Justification::LEFT
            : alignment == Pango::Alignment::RIGHT         ? Gtk::Justification::RIGHT
                                                           : Gtk::Justification::CENTER);
}

ProgressBarWidget::ProgressBarWidget()
{
    leaf().add_css_class("velmaro-progress");
    leaf().set_hexpand();
    gtk_accessible_update_property(
        GTK_ACCESSIBLE(leaf().gobj()), GTK_ACCESSIBLE_PROPERTY_LABEL, "Loading", -1);
}

void ProgressBarWidget::apply(const ui::Node& node)
{
    leaf().set_fraction(static_cast<const ui::ProgressBarNode&>(node).fraction);
}

SpinnerWidget::SpinnerWidget()
{
    leaf().start();
    leaf().set_size_request(10, 10);
}

SpacerRoom::SpacerRoom()
    : Glib::ObjectBase("VelmaroSpacer")
{
    set_can_target(false);
}

void SpacerWidget::apply(const ui::Node& node)
{
    const auto length =
        static_cast<int>(std::lround(static_cast<const ui::SpacerNode&>(node).minLength));
    leaf().set_size_request(length, length);
}

DividerWidget::DividerWidget()
{
    leaf().set_hexpand();
    leaf().add_css_class("velmaro-divider");
}

} // namespace gtk
