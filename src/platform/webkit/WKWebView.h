#pragma once

#include "platform/appkit/NSPrintOperation.h"
#include "platform/appkit/NSView.h"
#include "platform/foundation/Data.h"
#include "platform/foundation/NSError.h"
#include "platform/webkit/URLRequest.h"
#include "platform/webkit/WKFindConfiguration.h"
#include "platform/webkit/WKPDFConfiguration.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <variant>

namespace platform {

class NSDraggingDestination;
class WKNavigationDelegate;
class WKUIDelegate;

// A view that shows web pages, one after the other, and keeps a list of them. Its content process
// may die without harm: see `docs/web-view.md` for what the view does then, and when a load fails.
//
// The platform makes it for its owner: a tree of views, or a caller that shows it nowhere. Main
// thread only. Nothing here waits for the content process.
class WKWebView : public NSView {
public:
    enum class Property { canGoBack, canGoForward, isLoading, estimatedProgress, title };

    // A running observation; dropping it ends it.
    using Observation = std::shared_ptr<void>;

    std::weak_ptr<WKNavigationDelegate> navigationDelegate;
    std::weak_ptr<WKUIDelegate> uiDelegate;

    // Comes before the page with every drag of files; null leaves all of them to the page.
    std::shared_ptr<NSDraggingDestination> draggingDestination;

    virtual void load(const URLRequest& request) = 0;

    // Loads a document that is already here. Its relative addresses count from `baseURL`, whose
    // origin it has, and lead nowhere without one. Nothing is asked of that address.
    virtual void loadHTMLString(const std::string& html, const std::optional<URL>& baseURL) = 0;

    // Runs `script` in the main frame's page. Neither its result nor an error comes back.
    virtual void evaluateJavaScript(const std::string& script) = 0;

    // Selects the next match of `text` in the direction of the configuration, and scrolls to it.
    // Each call is answered once, in the order of the calls, unless the view goes away before.
    virtual void find(const std::string& text, const WKFindConfiguration& configuration,
        std::function<void(const WKFindResult&)> completion) = 0;

    // Makes one PDF document of the page as it looks on the screen, its text as text and its links
    // as links. Answered once, unless the view goes away before.
    virtual void createPDF(const WKPDFConfiguration& configuration,
        std::function<void(const std::variant<Data, NSError>&)> completion) = 0;

    // A print of the page, ready to be run.
    virtual std::shared_ptr<NSPrintOperation> printOperation(const NSPrintInfo& printInfo) = 0;

    // One step in the list of pages; nothing when there is none.
    virtual void goBack() = 0;
    virtual void goForward() = 0;

    virtual bool canGoBack() const = 0;
    virtual bool canGoForward() const = 0;
    virtual bool isLoading() const = 0;
    virtual double estimatedProgress() const = 0; // 0.0 to 1.0
    virtual std::string title() const = 0; // empty when the page has none

    // Calls `handler` now, and after every change of `property`.
    [[nodiscard]] virtual Observation observe(Property property, std::function<void()> handler) = 0;

    // How large the page is shown; 1 is its own size. It is laid out anew for that.
    virtual void setPageZoom(double factor) = 0;

    virtual void setCustomUserAgent(const std::string& userAgent) = 0;
    virtual void setAllowsBackForwardNavigationGestures(bool isAllowed) = 0;
    virtual void setAllowsMagnification(bool isAllowed) = 0;

    // Scroll bars that lie over the page and fade, and take no room.
    virtual void setUsesOverlayScrollers(bool isOverlay) = 0;

    // Whether the view paints a colour of its own behind the page.
    virtual void setDrawsBackground(bool isDrawn) = 0;
};

} // namespace platform
