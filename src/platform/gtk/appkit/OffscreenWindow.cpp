#include "platform/gtk/appkit/OffscreenWindow.h"

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
    if (const auto view = std::exchange(contentView_, nullptr))
        view->setWindow(nullptr);
}

} // namespace gtk
