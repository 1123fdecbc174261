#include "platform/gtk/ui/ToolbarWidget.h"

namespace gtk {

ToolbarWidget::~ToolbarWidget()
{
    if (nothing_.get_parent())
        nothing_.unparent();
}

void ToolbarWidget::place(ui::Widget& child, std::size_t index)
{
    auto& widget = nativeOf(child);
    auto& box = index == 0 ? toolbar_.leading : toolbar_.trailing;
    if (widget.get_parent() != &box)
        box.append(widget);
}

void ToolbarWidget::remove(ui::Widget& child, std::shared_ptr<void>)
{
    nativeOf(child).unparent();
}

} // namespace gtk
