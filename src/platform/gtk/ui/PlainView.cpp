#include "platform/gtk/ui/PlainView.h"

#include "platform/gtk/windows/MainWindow.h"

namespace gtk {

platform::NSWindow* PlainView::window() const
{
    return MainWindow::holding(area_);
}

} // namespace gtk
