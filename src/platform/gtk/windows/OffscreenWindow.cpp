#include "platform/gtk/windows/OffscreenWindow.h"

#include "platform/appkit/NSWindowDelegate.h"

#include <utility>

namespace gtk {

OffscreenWindow::OffscreenWindow(
    const platform::NSRect& frame, std::shared_ptr<OffscreenWebView> contentView)
    : frame_(frame)
    , contentView_(std::move(contentView))
{
    contentView_->setWindow(this);
}

void OffscreenWindow::close()
{
    const auto view = std::exchange(contentView_, nullptr);
    if (!view)
        return;
    if (delegate_)
        delegate_->windowWillClose(*this);
    view->setWindow(nullptr);
}

} // namespace gtk
