#include "platform/gtk/ui/WidgetFactory.h"

#include "platform/gtk/ui/ButtonWidget.h"
#include "platform/gtk/ui/Drawing.h"
#include "platform/gtk/ui/GroupWidget.h"
#include "platform/gtk/ui/HostWidget.h"
#include "platform/gtk/ui/LayoutWidgets.h"
#include "platform/gtk/ui/Leaves.h"
#include "platform/gtk/ui/PopoverWidget.h"
#include "platform/gtk/ui/ScrollAreaWidget.h"
#include "platform/gtk/ui/SheetWidget.h"
#include "platform/gtk/ui/TextFieldWidget.h"
#include "platform/gtk/ui/ToolbarWidget.h"
#include "platform/ui/ViewNodes.h"

namespace gtk {

std::unique_ptr<ui::Widget> WidgetFactory::makeWidget(const ui::Node& node)
{
    switch (node.kind) {
    case ui::Kind::group:
        return std::make_unique<GroupWidget>();
    case ui::Kind::frame:
        return std::make_unique<FrameWidget>();
    case ui::Kind::padding:
        return std::make_unique<PaddingWidget>();
    case ui::Kind::horizontalStack:
        return std::make_unique<StackWidget>(Gtk::Orientation::HORIZONTAL);
    case ui::Kind::verticalStack:
        return std::make_unique<StackWidget>(Gtk::Orientation::VERTICAL);
    case ui::Kind::layers:
        return std::make_unique<LayersWidget>();
    case ui::Kind::fill:
        return std::make_unique<FillWidget>();
    case ui::Kind::linearGradient:
        return std::make_unique<LinearGradientWidget>();
    case ui::Kind::text:
        return std::make_unique<TextWidget>();
    case ui::Kind::symbol:
        return std::make_unique<SymbolWidget>();
    case ui::Kind::icon:
        return std::make_unique<IconWidget>();
    case ui::Kind::spinner:
        return std::make_unique<SpinnerWidget>();
    case ui::Kind::spacer:
        return std::make_unique<SpacerWidget>();
    case ui::Kind::divider:
        return std::make_unique<DividerWidget>();
    case ui::Kind::roundedRectangle:
        return std::make_unique<RoundedRectangleWidget>();
    case ui::Kind::button:
        return std::make_unique<ButtonWidget>();
    case ui::Kind::toggle:
        return std::make_unique<ToggleWidget>();
    case ui::Kind::textArea:
        return std::make_unique<TextAreaWidget>();
    case ui::Kind::textField:
        return std::make_unique<TextFieldWidget>();
    case ui::Kind::scrollArea:
        return std::make_unique<ScrollAreaWidget>();
    case ui::Kind::sheet:
        return std::make_unique<SheetWidget>();
    case ui::Kind::popover:
        return std::make_unique<PopoverWidget>();
    case ui::Kind::toolbar:
        return std::make_unique<ToolbarWidget>(toolbar_);
    case ui::Kind::applicationIcon:
        return std::make_unique<ApplicationIconWidget>();
    case ui::Kind::progressBar:
        return std::make_unique<ProgressBarWidget>();
    case ui::Kind::component:
    case ui::Kind::sequence:
    case ui::Kind::hosted:
        break; // never asked for
    }
    g_assert_not_reached();
}

std::unique_ptr<ui::Widget> WidgetFactory::makeHost(ui::HostedView& hosted)
{
    return std::make_unique<HostWidget>(hosted, firstFrame_);
}

} // namespace gtk
