#pragma once

#include "platform/gtk/network/HostTrust.h"
#include "platform/gtk/webkit/FailurePanel.h"
#include "platform/gtk/webkit/RetrySchedule.h"
#include "platform/webkit/URLRequest.h"

#include <gtkmm/overlay.h>

namespace gtk {

// Makes sure that a web view ends on a page. It watches the loads and the content process: a load
// that gets no answer is given up, a process that dies is replaced, and while there is no page a
// panel covers the view, from which the page is tried again. The engine's own error pages never
// appear.
class PageRecovery {
public:
    struct Callbacks {
        std::function<void()> coverChanged; // the panel has come or gone, or tells something else
        std::function<void()> readinessChanged;
    };

    // `view` and `area`, its parent, must outlive this.
    PageRecovery(WebKitWebView* view, Gtk::Overlay& area, std::shared_ptr<const HostTrust> trust,
        const PageTimeouts& patience, Callbacks callbacks);

    void load(const platform::URLRequest& request);

    // Whether there is a page that a script can run in. Asking means that the user wants the page:
    // when it has failed or died, it is loaded again.
    bool hasPageForScript();

    // Takes the panel away from a page that is still alive under it, and gives up the load that has
    // failed over it.
    void uncover();

    void setShown(bool isShown);

    // What the panel tells; null while there is no panel.
    const LoadFailure* failure() const { return failure_ ? &*failure_ : nullptr; }

    // A page stands under the panel: the one from which the load that failed was started.
    bool hasPageUnderPanel() const { return failure_ && hasPage_; }

    // A page has been loaded to its end, and nothing covers it.
    bool isReady() const { return isReady_; }

private:
    static void loadChanged(WebKitWebView*, WebKitLoadEvent event, PageRecovery* self);
    static gboolean loadFailed(
        WebKitWebView*, WebKitLoadEvent event, char* address, GError* error, PageRecovery* self);
    static gboolean certificateFailed(WebKitWebView*, char* address, GTlsCertificate* certificate,
        GTlsCertificateFlags, PageRecovery* self);
    static void processDied(WebKitWebView*, WebKitWebProcessTerminationReason, PageRecovery* self);

    bool isAskedFor(const std::string& address) const;
    void send(const std::string& address, double secondsToAnswer,
        platform::URLRequest::CachePolicy policy = {});
    void awaitAnswer(double seconds);
    void giveUp();
    void commit();
    void fail(LoadFailure::Reason reason, const std::string& address);
    void tryAgain();
    void loadAgain(const std::string& address);
    void revive();
    void replaceProcess();
    void removePanel();
    void setReady(bool isReady);

    WebKitWebView* const view_;
    Gtk::Overlay& area_;
    const std::shared_ptr<const HostTrust> trust_;
    const PageTimeouts patience_;
    const Callbacks callbacks_;

    std::optional<platform::URLRequest> request_; // asked for; its page is not there yet
    std::optional<LoadFailure> failure_;
    std::unique_ptr<FailurePanel> panel_; // as long as there is a failure
    bool hasPage_ = false; // a document is there and its process is alive
    bool isReady_ = false;
    bool isShown_ = false;
    bool revivesWhenShown_ = false;
    bool isOutOfTime_ = false; // a load is being stopped that has had no answer
    bool hasExtendedTrust_ = false; // during this load
    std::optional<gint64> lastDeath_; // microseconds
    Timer answerTimer_;
    RetrySchedule retries_;
    SignalHandlers signals_;
};

} // namespace gtk
