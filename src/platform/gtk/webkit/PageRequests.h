#pragma once

#include "platform/gtk/foundation/SignalHandlers.h"

#include <webkit/webkit.h>

namespace gtk {

class EngineView;

// Asks the delegates of a web view about what its pages want - to go somewhere, a window of their
// own, files of the user's - and does what they decide. Without a delegate, pages of the web are
// shown and nothing else.
class PageRequests {
public:
    // `owner` must outlive this.
    explicit PageRequests(EngineView& owner);

private:
    static gboolean decide(
        WebKitWebView*, WebKitPolicyDecision* decision, WebKitPolicyDecisionType, PageRequests*);
    static GtkWidget* makeWindow(WebKitWebView*, WebKitNavigationAction* action, PageRequests*);
    static gboolean chooseFiles(WebKitWebView*, WebKitFileChooserRequest* request, PageRequests*);

    void decideNavigation(WebKitNavigationPolicyDecision* decision);
    gboolean decideResponse(WebKitResponsePolicyDecision* decision);
    void ask(WebKitPolicyDecision* decision, const char* address, bool mayBeDownload);
    void askForWindow(const char* address);

    EngineView& owner_;
    SignalHandlers signals_;
};

} // namespace gtk
