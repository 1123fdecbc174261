#pragma once

#include "platform/foundation/NSError.h"
#include "platform/foundation/URL.h"

#include <functional>
#include <memory>
#include <optional>

namespace platform {

class WKDownload;
class WKWebView;

// A page, a frame of it, or the user wants to go somewhere.
struct WKNavigationAction {
    // Where to; absent when that is no address at all.
    std::optional<URL> requestURL;

    // The page asks that it be saved and not shown.
    bool shouldPerformDownload = false;
};

enum class WKNavigationActionPolicy { cancel, allow, download };

// What a web view asks and tells about its loads. The web view holds it weakly and calls it on the
// main thread; what is not implemented is left to the web view.
class WKNavigationDelegate {
public:
    virtual ~WKNavigationDelegate() = default;

    // Asked for every navigation of every frame, redirects included. `decide` is to be called once;
    // until then the navigation waits.
    virtual void decidePolicy(WKWebView&, const WKNavigationAction&,
        const std::function<void(WKNavigationActionPolicy)>& decide)
    {
        decide(WKNavigationActionPolicy::allow);
    }

    // A download that gets no delegate is cancelled.
    virtual void navigationActionDidBecomeDownload(WKWebView&, const std::shared_ptr<WKDownload>&)
    {
    }
    virtual void navigationResponseDidBecomeDownload(WKWebView&, const std::shared_ptr<WKDownload>&)
    {
    }

    // The main frame's document has been loaded to its end.
    virtual void didFinishNavigation(WKWebView&) { }

    // The load broke off after the first answer, or before there was any.
    virtual void didFailNavigation(WKWebView&, const NSError&) { }
    virtual void didFailProvisionalNavigation(WKWebView&, const NSError&) { }
};

} // namespace platform
