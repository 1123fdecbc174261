#include "platform/gtk/windows/PanelFrame.h"

#include "platform/appkit/NSWindowDescription.h"

#include <cmath>

namespace gtk {

using Description = platform::NSWindowDescription;

PanelFrame::PanelFrame(Gtk::Window& window, Gtk::Widget& content, const Description& description)
    : window_(window)
{
    window.set_title(description.title);
    window.set_resizable(description.styleMask & Description::resizable);
    window.set_default_size(static_cast<int>(std::lround(description.contentSize.width)),
        static_cast<int>(std::lround(description.contentSize.height)));

    setUpBar(description);
    auto* child = &content;
    if (description.isMovableByWindowBackground) {
        handle_.set_child(content);
        child = &handle_;
    }
    layers_.set_child(*child);
    window.set_child(layers_);
    if (description.styleMask & Description::fullSizeContentView) {
        noBar_.set_visible(false);
        window.set_titlebar(noBar_);
        bar_.set_valign(Gtk::Align::START);
        layers_.add_overlay(bar_);
    } else {
        window.set_titlebar(bar_);
    }
}

PanelFrame::~PanelFrame()
{
    handle_.unset_child();
    layers_.unset_child();
    window_.unset_child();
}

void PanelFrame::setUpBar(const Description& description)
{
    std::string buttons = ":";
    if (description.styleMask & Description::miniaturizable)
        buttons += "minimize,";
    if (description.styleMask & Description::closable)
        buttons += "close";
    bar_.set_decoration_layout(buttons);
    if (description.isTitleHidden)
        bar_.set_title_widget(noTitle_);
    if (description.isTitlebarTransparent)
        bar_.add_css_class("velmaro-transparent-bar");
}

} // namespace gtk
