#include "platform/simulated/SimulatedWindow.h"

#include "platform/appkit/NSWindowDelegate.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <algorithm>
#include <utility>

namespace simulated {

using platform::NotificationCenter;
using platform::NSRect;

SimulatedWindow::SimulatedWindow(SimulatedPlatform& platform, Options options)
    : platform_(platform)
    , options_(std::move(options))
    , root_(renderer_)
{
    setCollectionBehavior(fullScreenNone);
    root_.window_ = this;
    contentView_.setHost(&root_);
    if (options_.offscreenView)
        options_.offscreenView->offscreenWindow = this;
    isVisible_ = options_.isVisible && !options_.offscreenView;
}

void SimulatedWindow::show(ui::View content)
{
    mount_.emplace(std::move(content), renderer_, root_);
    platform_.application().followFocus();
    platform_.mainQueue().async([weakWindow = weak_from_this(), this] {
        if (!weakWindow.expired())
            renderer_.showFirstFrame();
    });
}

platform::NSScreen* SimulatedWindow::screen() const
{
    return platform_.screenWith(frame_);
}

void SimulatedWindow::setFrame(const NSRect& frame, bool, bool)
{
    const auto before = std::exchange(frame_, frame);
    if (frame_.size != before.size)
        NotificationCenter::defaultCenter().post(didResizeNotification, this);
}

platform::NSView* SimulatedWindow::contentView() const
{
    return options_.hasContentView ? &contentView_ : nullptr;
}

void SimulatedWindow::makeKeyAndOrderFront()
{
    isVisible_ = true;
    platform_.application().windowBecameKey(*this);
}

void SimulatedWindow::close()
{
    if (const auto view = std::exchange(options_.offscreenView, nullptr)) {
        view->offscreenWindow = nullptr;
        return;
    }
    if (delegate_)
        delegate_->windowWillClose(*this);
    platform_.application().windowClosed(*this);
}

void SimulatedWindow::simulateUserResize(platform::NSSize size)
{
    size.width = std::max(size.width, minSize_.width);
    size.height = std::max(size.height, minSize_.height);
    const double top = frame_.origin.y + frame_.size.height;
    simulateFrame({{frame_.origin.x, top - size.height}, size});
}

void SimulatedWindow::simulateFrame(const NSRect& frame)
{
    frame_ = frame;
    NotificationCenter::defaultCenter().post(didResizeNotification, this);
}

} // namespace simulated
