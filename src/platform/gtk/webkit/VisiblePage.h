#pragma once

#include <sigc++/signal.h>
#include <webkit/webkit.h>

namespace gtk {

// Which of the web views is the one in front, and whether its page is there. Views name themselves
// by their address.
class VisiblePage {
public:
    // The view that was shown last, if it is still shown, has finished loading a page that nothing
    // covers now.
    bool isReady() const { return isReady_; }

    // After every change of `isReady`.
    sigc::signal<void()>& signalChanged() { return signalChanged_; }

    // The engine's part of that view; null when none is shown.
    WebKitWebView* page() const { return page_; }

    void shown(const void* view, WebKitWebView* page, bool isReady);
    void readinessChanged(const void* view, bool isReady);
    void hidden(const void* view);

private:
    void setReady(bool isReady);

    const void* view_ = nullptr; // identity only
    WebKitWebView* page_ = nullptr;
    bool isReady_ = false;
    sigc::signal<void()> signalChanged_;
};

} // namespace gtk
