#include "platform/gtk/appkit/PlainView.h"

#include "platform/gtk/appkit/MainWindow.h"

namespace gtk {

platform::NSWindow* PlainView::window() const
{
    return MainWindow::holding(area_);
}

} // namespace gtk
