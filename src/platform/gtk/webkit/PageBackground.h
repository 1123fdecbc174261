#pragma once

#include "platform/gtk/foundation/SignalHandlers.h"

#include <gtkmm/widget.h>
#include <webkit/webkit.h>

namespace gtk {

// What stands behind the page of one web view where the page itself paints nothing: white, or the
// colour of the window, whatever theme the desktop has.
class PageBackground {
public:
    // Both must outlive this; `area` holds the view.
    PageBackground(WebKitWebView* view, const Gtk::Widget& area);

    void setWhite(bool isWhite);

private:
    void paint();

    WebKitWebView* const view_;
    const Gtk::Widget& area_;
    bool isWhite_ = true;
    SignalHandlers signals_;
};

} // namespace gtk
