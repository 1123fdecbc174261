#include "platform/gtk/ui/HostWidget.h"

#include "platform/gtk/ui/FirstFrame.h"
#include "platform/gtk/ui/NativeView.h"

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
    , firstFrame_(firstFrame)
    , isAlive_(std::make_shared<bool>(true))
{
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
    if (view_) {
        nativeView(*view_).setShown(isShown);
    } else if (isShown) {
        const auto make = [this, isAlive = std::weak_ptr(isAlive_)] {
            if (isAlive.lock())
                makeIfShown();
        };
        if (hosted_.waitsForFirstFrame())
            firstFrame_.whenPainted(make);
        else
            make();
    }
}

void HostWidget::makeIfShown()
{
    if (view_ || !isShown_)
        return;
    view_ = hosted_.view();
    auto& native = nativeView(*view_);
    native.nativeWidget().insert_at_start(area_);
    native.setShown(true);
}

} // namespace gtk
