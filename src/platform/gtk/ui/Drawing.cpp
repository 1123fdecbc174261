#include "platform/gtk/ui/Drawing.h"

#include "platform/gtk/ui/Pictures.h"
#include "platform/gtk/ui/ThemeColor.h"
#include "platform/ui/ViewNodes.h"

#include <algorithm>
#include <cairomm/context.h>
#include <cmath>
#include <gdkmm/general.h>
#include <gtkmm/snapshot.h>

namespace gtk {

namespace {

// Gives what is drawn on `snapshot` while this lives a shadow of its own outline.
class OutlineShadow {
public:
    OutlineShadow(Gtk::Snapshot& snapshot, const Gtk::Widget& widget, const ui::Shadow& shadow);
    ~OutlineShadow();

    OutlineShadow(const OutlineShadow&) = delete;
    OutlineShadow& operator=(const OutlineShadow&) = delete;

private:
    Gtk::Snapshot& snapshot_;
    bool isVisible_ = false;
};

OutlineShadow::OutlineShadow(
    Gtk::Snapshot& snapshot, const Gtk::Widget& widget, const ui::Shadow& shadow)
    : snapshot_(snapshot)
{
    const auto color = themeColor(widget, shadow.color);
    isVisible_ = color.get_alpha() > 0;
    if (!isVisible_)
        return;
    const GskShadow native = {
        .color = *color.gobj(),
        .dx = 0,
        .dy = static_cast<float>(shadow.y),
        .radius = static_cast<float>(shadow.radius),
    };
    gtk_snapshot_push_shadow(snapshot.gobj(), &native, 1);
}

OutlineShadow::~OutlineShadow()
{
    if (isVisible_)
        gtk_snapshot_pop(snapshot_.gobj());
}

// A symbol is about as high as a capital letter and its overshoot.
constexpr double symbolPerFontSize = 1.25;

} // namespace

FillArea::FillArea()
    : Glib::ObjectBase("VelmaroFill")
{
    set_expand();
}

void FillArea::set(const ui::Color& color)
{
    if (color_ == color)
        return;
    color_ = color;
    queue_draw();
}

void FillArea::snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot)
{
    snapshot->append_color(
        themeColor(*this, color_), Gdk::Rectangle(0, 0, get_width(), get_height()));
}

void FillWidget::apply(const ui::Node& node)
{
    leaf().set(static_cast<const ui::FillNode&>(node).color);
}

LinearGradientArea::LinearGradientArea()
    : Glib::ObjectBase("VelmaroLinearGradient")
{
    set_expand();
    set_can_target(false);
}

void LinearGradientArea::set(const ui::GradientOptions& options)
{
    if (options_ == options)
        return;
    options_ = options;
    queue_draw();
}

void LinearGradientArea::snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot)
{
    const auto width = static_cast<float>(get_width());
    const auto height = static_cast<float>(get_height());
    const bool isMirrored = get_direction() == Gtk::TextDirection::RTL;
    const graphene_rect_t bounds{{0, 0}, {width, height}};
    const graphene_point_t start{isMirrored ? width : 0, 0};
    const graphene_point_t end{isMirrored ? 0 : width, height};
    const auto from = themeColor(*this, options_.from);
    const auto to = themeColor(*this, options_.to);
    const GskColorStop stops[] = {{0, *from.gobj()}, {1, *to.gobj()}};
    gtk_snapshot_append_linear_gradient(
        snapshot->gobj(), &bounds, &start, &end, stops, std::size(stops));
}

void LinearGradientWidget::apply(const ui::Node& node)
{
    leaf().set(static_cast<const ui::LinearGradientNode&>(node).options);
}

SymbolArea::SymbolArea()
    : Glib::ObjectBase("VelmaroSymbol")
{
    set_can_target(false);
}

void SymbolArea::set(const std::string& name, const ui::SymbolOptions& options)
{
    if (name_ == name && options_ == options)
        return;
    const bool isResized = !(options_.font == options.font);
    name_ = name;
    options_ = options;
    if (isResized)
        queue_resize();
    queue_draw();
}

int SymbolArea::extent() const
{
    return static_cast<int>(std::lround(options_.font.size * symbolPerFontSize));
}

void SymbolArea::measure_vfunc(Gtk::Orientation, int, int& minimum, int& natural,
    int& minimumBaseline, int& naturalBaseline) const
{
    minimum = natural = extent();
    minimumBaseline = naturalBaseline = -1;
}

void SymbolArea::snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot)
{
    const int scale = get_scale_factor();
    const auto mask = symbolMask(name_, extent() * scale);
    if (!mask)
        return;
    const double x = std::floor((get_width() - extent()) / 2.0);
    const double y = std::floor((get_height() - extent()) / 2.0);
    const OutlineShadow shadow(*snapshot.get(), *this, options_.shadow);
    const auto context = snapshot->append_cairo(Gdk::Rectangle(0, 0, get_width(), get_height()));
    context->translate(x, y);
    context->scale(1.0 / scale, 1.0 / scale);
    Gdk::Cairo::set_source_rgba(context, themeInk(*this, options_.color));
    context->mask(mask, 0, 0);
}

void SymbolWidget::apply(const ui::Node& node)
{
    const auto& symbol = static_cast<const ui::SymbolNode&>(node);
    leaf().set(symbol.name, symbol.options);
}

ApplicationIconArea::ApplicationIconArea()
    : Glib::ObjectBase("VelmaroApplicationIcon")
{
    set_expand();
}

void ApplicationIconArea::set(const ui::ApplicationIconOptions& options)
{
    if (options_ == options)
        return;
    options_ = options;
    queue_draw();
}

void ApplicationIconArea::measure_vfunc(Gtk::Orientation, int, int& minimum, int& natural,
    int& minimumBaseline, int& naturalBaseline) const
{
    const auto icon = applicationIcon();
    minimum = 0;
    natural = icon ? icon->get_intrinsic_width() : 0;
    minimumBaseline = naturalBaseline = -1;
}

void ApplicationIconArea::snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot)
{
    const auto icon = applicationIcon();
    if (!icon)
        return;
    const int side = std::min(get_width(), get_height());
    const OutlineShadow shadow(*snapshot.get(), *this, options_.shadow);
    const graphene_point_t corner{
        static_cast<float>(get_width() - side) / 2, static_cast<float>(get_height() - side) / 2};
    snapshot->save();
    gtk_snapshot_translate(snapshot->gobj(), &corner);
    icon->snapshot(snapshot, side, side);
    snapshot->restore();
}

void ApplicationIconWidget::apply(const ui::Node& node)
{
    leaf().set(static_cast<const ui::ApplicationIconNode&>(node).options);
}

RoundedRectangleArea::RoundedRectangleArea()
    : Glib::ObjectBase("VelmaroRoundedRectangle")
{
    set_expand();
    set_can_target(false);
}

void RoundedRectangleArea::set(const ui::ShapeOptions& options)
{
    if (options_ == options)
        return;
    options_ = options;
    queue_draw();
}

void RoundedRectangleArea::snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot)
{
    graphene_rect_t bounds;
    graphene_rect_init(
        &bounds, 0, 0, static_cast<float>(get_width()), static_cast<float>(get_height()));
    GskRoundedRect outline;
    gsk_rounded_rect_init_from_rect(&outline, &bounds, static_cast<float>(options_.cornerRadius));

    const auto shadow = themeColor(*this, options_.shadow.color);
    if (shadow.get_alpha() > 0) {
        gtk_snapshot_append_outset_shadow(snapshot->gobj(), &outline, shadow.gobj(), 0,
            static_cast<float>(options_.shadow.y), 0, static_cast<float>(options_.shadow.radius));
    }

    const auto fill = themeColor(*this, options_.fill);
    gtk_snapshot_push_rounded_clip(snapshot->gobj(), &outline);
    gtk_snapshot_append_color(snapshot->gobj(), fill.gobj(), &bounds);
    gtk_snapshot_pop(snapshot->gobj());

    const auto stroke = themeInk(*this, options_.stroke);
    if (options_.lineWidth > 0 && stroke.get_alpha() > 0) {
        const auto width = static_cast<float>(options_.lineWidth);
        const float widths[] = {width, width, width, width};
        const GdkRGBA colors[] = {*stroke.gobj(), *stroke.gobj(), *stroke.gobj(), *stroke.gobj()};
        gtk_snapshot_append_border(snapshot->gobj(), &outline, widths, colors);
    }
}

void RoundedRectangleWidget::apply(const ui::Node& node)
{
    leaf().set(static_cast<const ui::RoundedRectangleNode&>(node).options);
}

} // namespace gtk
