#include "platform/gtk/ui/Leaves.h"

#include "platform/gtk/ui/ApplicationIcon.h"
#include "platform/gtk/ui/ThemeColor.h"
#include "platform/ui/Node.h"

#include <cmath>
#include <gtkmm/snapshot.h>
#include <pangomm/attrlist.h>

namespace gtk {

namespace {

void leaveParent(Gtk::Widget& widget)
{
    if (widget.get_parent())
        widget.unparent();
}

Pango::Weight pangoWeight(ui::Font::Weight weight)
{
    switch (weight) {
    case ui::Font::Weight::medium:
        return Pango::Weight::MEDIUM;
    case ui::Font::Weight::semibold:
        return Pango::Weight::SEMIBOLD;
    case ui::Font::Weight::bold:
        return Pango::Weight::BOLD;
    default:
        return Pango::Weight::NORMAL;
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
    label_.set_text(text.text);

    const auto color = themeColor(label_, text.color);
    const auto channel = [](float value) {
        return static_cast<guint16>(std::lround(value * 65535));
    };
    Pango::AttrList attributes;
    auto size =
        Pango::Attribute::create_attr_size_absolute(static_cast<int>(text.font.size * PANGO_SCALE));
    auto weight = Pango::Attribute::create_attr_weight(pangoWeight(text.font.weight));
    auto foreground = Pango::Attribute::create_attr_foreground(
        channel(color.get_red()), channel(color.get_green()), channel(color.get_blue()));
    attributes.insert(size);
    attributes.insert(weight);
    attributes.insert(foreground);
    label_.set_attributes(attributes);
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

} // namespace gtk
