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

Pango::EllipsizeMode ellipsizeMode(const ui::TextOptions& options)
{
    if (options.wraps)
        return Pango::EllipsizeMode::NONE;
    return options.truncation == ui::Truncation::middle ? Pango::EllipsizeMode::MIDDLE
                                                        : Pango::EllipsizeMode::END;
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
    leaf().set_ellipsize(ellipsizeMode(*options_));
    leaf().set_max_width_chars(options_->lineLength > 0 ? options_->lineLength : -1);

    const auto alignment = lineAlignment(options_->alignment);
    const double place = alignment == Pango::Alignment::LEFT ? 0
        : alignment == Pango::Alignment::RIGHT               ? 1
                                                             : 0.5;
    leaf().set_xalign(static_cast<float>(place));
    leaf().set_justify(alignment == Pango::Alignment::LEFT ? Gtk::Justification::LEFT
            : alignment == Pango::Alignment::RIGHT         ? Gtk::Justification::RIGHT
                                                           : Gtk::Justification::CENTER);
}

void IconWidget::apply(const ui::Node& node)
{
    const auto& icon = static_cast<const ui::IconNode&>(node);
    g_autoptr(GIcon) known = g_icon_new_for_string(icon.name.c_str(), nullptr);
    gtk_image_set_from_gicon(leaf().gobj(), known);
}

ToggleWidget::ToggleWidget()
{
    leaf().signal_toggled().connect([this] {
        if (leaf().get_active() != isOn_.get())
            isOn_.set(leaf().get_active());
    });
}

void ToggleWidget::apply(const ui::Node& node)
{
    const auto& toggle = static_cast<const ui::ToggleNode&>(node);
    isOn_ = toggle.isOn;
    leaf().set_label(toggle.title);
    leaf().set_active(isOn_.get());
}

TextAreaWidget::TextAreaWidget()
{
    constexpr int margin = 8;

    text_.set_editable(false);
    text_.set_cursor_visible(false);
    text_.set_wrap_mode(Gtk::WrapMode::WORD_CHAR);
    text_.set_left_margin(margin);
    text_.set_right_margin(margin);
    text_.set_top_margin(margin);
    text_.set_bottom_margin(margin);
    leaf().set_child(text_);
    leaf().set_has_frame();
    leaf().set_policy(Gtk::PolicyType::NEVER, Gtk::PolicyType::AUTOMATIC);
    leaf().set_expand();
}

void TextAreaWidget::apply(const ui::Node& node)
{
    const auto& area = static_cast<const ui::TextAreaNode&>(node);
    setAccessibleName(text_, area.name);
    if (std::string(text_.get_buffer()->get_text()) != area.text)
        text_.get_buffer()->set_text(area.text);
}

ProgressBarWidget::ProgressBarWidget()
{
    leaf().set_hexpand();
}

void ProgressBarWidget::apply(const ui::Node& node)
{
    const auto& [fraction, options] =
        std::tie(static_cast<const ui::ProgressBarNode&>(node).fraction,
            static_cast<const ui::ProgressBarNode&>(node).options);
    if (options.isLine)
        leaf().add_css_class("velmaro-progress");
    else
        leaf().remove_css_class("velmaro-progress");
    setAccessibleName(leaf(), options.name);
    leaf().set_show_text(!options.text.empty());
    leaf().set_text(options.text);
    if (fraction)
        leaf().set_fraction(*fraction);
    else
        leaf().pulse();
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
