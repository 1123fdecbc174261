#include "platform/gtk/ui/Leaves.h"

#include "platform/gtk/ui/ApplicationIcon.h"
#include "platform/gtk/ui/FontAttributes.h"
#include "platform/gtk/ui/ThemeColor.h"
#include "platform/ui/Node.h"

#include <cmath>
#include <gtkmm/snapshot.h>

namespace gtk {

namespace {

void leaveParent(Gtk::Widget& widget)
{
    if (widget.get_parent())
        widget.unparent();
}

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

FillWidget::Area::Area()
    : Glib::ObjectBase("VelmaroFill")
{
    set_expand();
}

void FillWidget::Area::setColor(const ui::Color& color)
{
    if (color_ == color)
        return;
    color_ = color;
    queue_draw();
}

void FillWidget::Area::snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot)
{
    snapshot->append_color(
        themeColor(*this, color_), Gdk::Rectangle(0, 0, get_width(), get_height()));
}

FillWidget::FillWidget() = default;

FillWidget::~FillWidget()
{
    leaveParent(area_);
}

void FillWidget::apply(const ui::Node& node)
{
    area_.setColor(static_cast<const ui::FillNode&>(node).color);
}

TextWidget::~TextWidget()
{
    leaveParent(label_);
}

void TextWidget::apply(const ui::Node& node)
{
    const auto& text = static_cast<const ui::TextNode&>(node);
    if (std::string(label_.get_text()) != text.text)
        label_.set_text(text.text);
    if (options_ == text.options)
        return;
    options_ = text.options;

    auto attributes = fontAttributes(options_->font);
    if (options_->color.role == ui::Color::Role::fixed)
        addForeground(attributes, options_->color);
    label_.set_attributes(attributes);
    label_.set_css_classes(themeClasses(options_->color));
    label_.set_wrap(options_->wraps);
    label_.set_ellipsize(options_->wraps ? Pango::EllipsizeMode::NONE : Pango::EllipsizeMode::END);

    const auto alignment = lineAlignment(options_->alignment);
    const double place = alignment == Pango::Alignment::LEFT ? 0
        : alignment == Pango::Alignment::RIGHT               ? 1
                                                             : 0.5;
    label_.set_xalign(static_cast<float>(place));
    label_.set_justify(alignment == Pango::Alignment::LEFT ? Gtk::Justification::LEFT
            : alignment == Pango::Alignment::RIGHT         ? Gtk::Justification::RIGHT
                                                           : Gtk::Justification::CENTER);
}

ApplicationIconWidget::ApplicationIconWidget()
{
    picture_.set_paintable(applicationIcon());
    picture_.set_can_shrink(true);
    picture_.set_keep_aspect_ratio(true);
    picture_.set_expand();
}

ApplicationIconWidget::~ApplicationIconWidget()
{
    leaveParent(picture_);
}

ProgressBarWidget::ProgressBarWidget()
{
    bar_.add_css_class("velmaro-progress");
    bar_.set_hexpand();
    gtk_accessible_update_property(
        GTK_ACCESSIBLE(bar_.gobj()), GTK_ACCESSIBLE_PROPERTY_LABEL, "Loading", -1);
}

ProgressBarWidget::~ProgressBarWidget()
{
    leaveParent(bar_);
}

void ProgressBarWidget::apply(const ui::Node& node)
{
    bar_.set_fraction(static_cast<const ui::ProgressBarNode&>(node).fraction);
}

SpinnerWidget::SpinnerWidget()
{
    spinner_.start();
    spinner_.set_size_request(10, 10);
}

SpinnerWidget::~SpinnerWidget()
{
    leaveParent(spinner_);
}

SpacerRoom::SpacerRoom()
    : Glib::ObjectBase("VelmaroSpacer")
{
    set_can_target(false);
}

SpacerWidget::~SpacerWidget()
{
    leaveParent(room_);
}

void SpacerWidget::apply(const ui::Node& node)
{
    const auto length =
        static_cast<int>(std::lround(static_cast<const ui::SpacerNode&>(node).minLength));
    room_.set_size_request(length, length);
}

DividerWidget::DividerWidget()
{
    line_.set_hexpand();
    line_.add_css_class("velmaro-divider");
}

DividerWidget::~DividerWidget()
{
    leaveParent(line_);
}

} // namespace gtk
