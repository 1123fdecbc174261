#include "platform/gtk/ui/WindowContent.h"

#include "platform/gtk/ui/GroupWidget.h"
#include "platform/gtk/ui/WidgetStyle.h"

namespace gtk {

WindowContent::WindowContent(ui::View content)
    : root_(std::make_unique<GroupWidget>())
    , firstFrame_(root_->native())
    , factory_(firstFrame_, toolbar_)
    , mount_(std::move(content), factory_, *root_)
{
    installTheme(root_->native().get_display());
}

WindowContent::~WindowContent() = default;

Gtk::Widget& WindowContent::widget()
{
    return root_->native();
}

} // namespace gtk
