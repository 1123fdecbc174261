#include "platform/gtk/ui/HostWidget.h"

#include "platform/gtk/ui/FirstFrame.h"

#include <gtkmm/binlayout.h>

namespace gtk {

namespace {

NativeView& nativeView(platform::NSView& view)
{
    return dynamic_cast<NativeView&>(view);
}

} // namespace

HostWidget::Area::Area()
    : Glib::ObjectBase("VelmaroHost")
{
    set_expand();
    set_layout_manager(Gtk::BinLayout::create());
}

HostWidget::HostWidget(ui::HostedView& hosted, FirstFrame& firstFrame)
    : hosted_(hosted)
{
    if (!hosted_.waitsForFirstFrame()) {
        make();
        return;
    }
    firstFrame.whenPainted(lifetime_.guard([this] { make(); }));
}

HostWidget::~HostWidget()
{
    if (view_)
        nativeView(*view_).nativeWidget().unparent();
    if (area_.get_parent())
        area_.unparent();
}

void HostWidget::setShown(bool isShown)
{
    isShown_ = isShown;
    if (view_)
        nativeView(*view_).setShown(isShown);
}

void HostWidget::make()
{
    view_ = hosted_.view();
    auto& native = nativeView(*view_);
    native.nativeWidget().insert_at_start(area_);
    area_.set_vexpand();
    native.setShown(isShown_);
}

} // namespace gtk
