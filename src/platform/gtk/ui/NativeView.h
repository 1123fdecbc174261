#pragma once

namespace Gtk {
class Widget;
}

namespace gtk {

// The GTK side of a platform view: every `NSView` of this backend is one of these too.
class NativeView {
public:
    virtual ~NativeView() = default;

    // The widget to be placed in the window; lives as long as the view.
    virtual Gtk::Widget& nativeWidget() = 0;

    // The view has become part of what can be seen and clicked, or no longer is: its tab was chosen
    // or left.
    virtual void setShown(bool) { }
};

} // namespace gtk
