#pragma once

#include "platform/gtk/foundation/SignalHandlers.h"
#include "platform/webkit/WKWebView.h"

#include <webkit/webkit.h>

namespace gtk {

// Brings what a page wants - to go somewhere, a window of its own, files of the user's - before the
// delegates of its web view, and does what they decide. Where nobody is the delegate, pages of the
// web are shown and nothing else.
class PageRequests {
public:
    // `view` is the engine's part of `owner`, which must outlive this.
    PageRequests(WebKitWebView* view, platform::WKWebView& owner);

private:
    static gboolean decide(
        WebKitWebView*, WebKitPolicyDecision* decision, WebKitPolicyDecisionType, PageRequests*);
    static GtkWidget* makeWindow(WebKitWebView*, WebKitNavigationAction* action, PageRequests*);
    static gboolean chooseFiles(WebKitWebView*, WebKitFileChooserRequest* request, PageRequests*);

    void decideNavigation(WebKitNavigationPolicyDecision* decision);
    gboolean decideResponse(WebKitResponsePolicyDecision* decision);
    void ask(WebKitPolicyDecision* decision, const char* address, bool mayBeDownload);
    void askForWindow(const char* address);

    platform::WKWebView& owner_;
    SignalHandlers signals_;
};

} // namespace gtk
