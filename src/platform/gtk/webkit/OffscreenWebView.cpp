#include "platform/gtk/webkit/OffscreenWebView.h"

#include "platform/gtk/webkit/WebEngine.h"
#include "platform/webkit/WKNavigationDelegate.h"

#include <cmath>

namespace gtk {

namespace {

// A page has no width before its view has one, and no container gives one to this view.
void layOut(GtkWidget* widget, platform::NSSize size)
{
    const auto width = static_cast<int>(std::lround(size.width));
    const auto height = static_cast<int>(std::lround(size.height));
    gtk_widget_set_size_request(widget, width, height);
    gtk_widget_get_preferred_size(widget, nullptr, nullptr);
    gtk_widget_allocate(widget, width, height, -1, nullptr);
}

} // namespace

OffscreenWebView::OffscreenWebView(
    WebEngine& engine, platform::NSSize size, const platform::WKWebViewConfiguration& configuration)
    : EngineView(engine, configuration)
    , size_(size)
    , limiter_(engine.offscreenLoads())
{
    layOut(GTK_WIDGET(native()), size);
    const auto connect = [this](const char* signal, auto handler) {
        signals_.connect(native(), signal, G_CALLBACK(handler), this);
    };
    connect("load-changed", &OffscreenWebView::loadChanged);
    connect("load-failed", &OffscreenWebView::loadFailed);
    connect("load-failed-with-tls-errors", &OffscreenWebView::certificateFailed);
    connect("web-process-terminated", &OffscreenWebView::processDied);
}

void OffscreenWebView::awaitTurn(std::function<void()> begin)
{
    turn_ = limiter_->ask(std::move(begin));
}

void OffscreenWebView::load(const platform::URLRequest& request)
{
    awaitTurn([this, request] {
        answerTimer_.start(
            request.timeoutInterval, [this] { webkit_web_view_stop_loading(native()); });
        loadAddress(native(), request.url.absoluteString(), request.cachePolicy);
    });
}

void OffscreenWebView::loadHTMLString(
    const std::string& html, const std::optional<platform::URL>& baseURL)
{
    awaitTurn([this, html, baseURL] { EngineView::loadHTMLString(html, baseURL); });
}

std::shared_ptr<platform::NSPrintOperation> OffscreenWebView::printOperation(
    const platform::NSPrintInfo& printInfo)
{
    turn_.reset(); // from now on only the user takes time
    return EngineView::printOperation(printInfo);
}

void OffscreenWebView::fail(const std::string& reason)
{
    const auto delegate = navigationDelegate.lock();
    hasFailed_ = true;
    answerTimer_.stop();
    if (!delegate)
        return;
    if (hasCommitted_)
        delegate->didFailNavigation(*this, {reason});
    else
        delegate->didFailProvisionalNavigation(*this, {reason});
}

void OffscreenWebView::loadChanged(WebKitWebView*, WebKitLoadEvent event, OffscreenWebView* self)
{
    switch (event) {
    case WEBKIT_LOAD_STARTED:
        self->hasFailed_ = self->hasCommitted_ = false;
        break;
    case WEBKIT_LOAD_REDIRECTED:
        break;
    case WEBKIT_LOAD_COMMITTED:
        self->answerTimer_.stop();
        self->hasCommitted_ = true;
        break;
    case WEBKIT_LOAD_FINISHED:
        if (const auto delegate = self->navigationDelegate.lock(); delegate && !self->hasFailed_)
            delegate->didFinishNavigation(*self);
        break;
    }
}

gboolean OffscreenWebView::loadFailed(
    WebKitWebView*, WebKitLoadEvent, char*, GError* error, OffscreenWebView* self)
{
    self->fail(error->message);
    return TRUE; // no page that tells of the error
}

gboolean OffscreenWebView::certificateFailed(
    WebKitWebView*, char*, GTlsCertificate*, GTlsCertificateFlags, OffscreenWebView* self)
{
    self->fail("The server could not prove that it is the one it should be.");
    return TRUE;
}

void OffscreenWebView::processDied(
    WebKitWebView*, WebKitWebProcessTerminationReason, OffscreenWebView* self)
{
    const std::string reason = "The page has stopped unexpectedly.";
    if (!self->failDocuments(reason))
        self->fail(reason);
}

} // namespace gtk
