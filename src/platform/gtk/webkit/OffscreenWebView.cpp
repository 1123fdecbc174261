#include "platform/gtk/webkit/OffscreenWebView.h"

#include "platform/gtk/webkit/EngineRequest.h"
#include "platform/gtk/webkit/PageRefusals.h"
#include "platform/gtk/webkit/WebEngine.h"
#include "platform/webkit/WKNavigationDelegate.h"

#include <cmath>

namespace gtk {

namespace {

ObjectPointer<WebKitWebView> makeView(WebEngine& engine, platform::NSSize size,
    const platform::WKWebViewConfiguration& configuration, WebKitUserContentManager* content)
{
    const auto session = engine.session(configuration.websiteDataStore);
    const auto settings = engine.makeSettings(configuration.preferences);
    auto view = retain(WEBKIT_WEB_VIEW(g_object_new(WEBKIT_TYPE_WEB_VIEW, "network-session",
        session.get(), "settings", settings.get(), "user-content-manager", content, nullptr)));

    // A page has no width before its view has one, and nobody else gives one to this view.
    auto* widget = GTK_WIDGET(view.get());
    const auto width = static_cast<int>(std::lround(size.width));
    const auto height = static_cast<int>(std::lround(size.height));
    gtk_widget_set_size_request(widget, width, height);
    gtk_widget_get_preferred_size(widget, nullptr, nullptr);
    gtk_widget_allocate(widget, width, height, -1, nullptr);
    return view;
}

} // namespace

OffscreenWebView::OffscreenWebView(
    WebEngine& engine, platform::NSSize size, const platform::WKWebViewConfiguration& configuration)
    : size_(size)
    , limiter_(engine.offscreenLoads())
    , content_(configuration.userContentController, [] { return true; })
    , view_(makeView(engine, size, configuration, content_.manager()))
    , search_(view_.get())
    , output_(view_.get(), engine.printChoice())
{
    refusePageRequests(view_.get());
    watch();
}

void OffscreenWebView::watch()
{
    auto* view = view_.get();
    signals_.connect(view, "load-changed", G_CALLBACK(&OffscreenWebView::loadChanged), this);
    signals_.connect(view, "load-failed", G_CALLBACK(&OffscreenWebView::loadFailed), this);
    signals_.connect(view, "load-failed-with-tls-errors",
        G_CALLBACK(&OffscreenWebView::certificateFailed), this);
    signals_.connect(
        view, "web-process-terminated", G_CALLBACK(&OffscreenWebView::processDied), this);

    const auto notify = [this](gpointer object, const char* signal, auto handler) {
        signals_.connect(object, signal, G_CALLBACK(+handler), this);
    };
    notify(view, "notify::title", [](GObject*, GParamSpec*, OffscreenWebView* self) {
        self->observers_.notify(Property::title);
    });
    notify(view, "notify::is-loading", [](GObject*, GParamSpec*, OffscreenWebView* self) {
        self->observers_.notify(Property::isLoading);
    });
    notify(
        view, "notify::estimated-load-progress", [](GObject*, GParamSpec*, OffscreenWebView* self) {
            self->observers_.notify(Property::estimatedProgress);
        });
    notify(webkit_web_view_get_back_forward_list(view), "changed",
        [](WebKitBackForwardList*, WebKitBackForwardListItem*, gpointer, OffscreenWebView* self) {
            self->observers_.notify(Property::canGoBack);
            self->observers_.notify(Property::canGoForward);
        });
}

void OffscreenWebView::awaitTurn(std::function<void()> begin)
{
    turn_ = limiter_->ask(std::move(begin));
}

void OffscreenWebView::load(const platform::URLRequest& request)
{
    awaitTurn([this, request] {
        answerTimer_.start(
            request.timeoutInterval, [this] { webkit_web_view_stop_loading(view_.get()); });
        const bool revalidates =
            request.cachePolicy == platform::URLRequest::CachePolicy::reloadRevalidatingCacheData;
        const auto& address = request.url.absoluteString();
        webkit_web_view_load_request(view_.get(), makeRequest(address, revalidates).get());
    });
}

void OffscreenWebView::loadHTMLString(
    const std::string& html, const std::optional<platform::URL>& baseURL)
{
    awaitTurn([this, html, baseURL] { loadDocument(view_.get(), html, baseURL); });
}

void OffscreenWebView::evaluateJavaScript(const std::string& script)
{
    webkit_web_view_evaluate_javascript(view_.get(), script.data(),
        static_cast<gssize>(script.size()), nullptr, nullptr, nullptr, nullptr, nullptr);
}

void OffscreenWebView::find(const std::string& text,
    const platform::WKFindConfiguration& configuration,
    std::function<void(const platform::WKFindResult&)> completion)
{
    search_.find(text, configuration, std::move(completion));
}

void OffscreenWebView::createPDF(const platform::WKPDFConfiguration&,
    std::function<void(const PageDocument::Result&)> completion)
{
    output_.createPDF(size_.width, std::move(completion));
}

std::shared_ptr<platform::NSPrintOperation> OffscreenWebView::printOperation(
    const platform::NSPrintInfo& printInfo)
{
    turn_.reset(); // from now on it is the user who takes time
    return output_.print(printInfo);
}

double OffscreenWebView::estimatedProgress() const
{
    return webkit_web_view_get_estimated_load_progress(view_.get());
}

std::string OffscreenWebView::title() const
{
    const char* title = webkit_web_view_get_title(view_.get());
    return title ? title : "";
}

OffscreenWebView::Observation OffscreenWebView::observe(
    Property property, std::function<void()> handler)
{
    return observers_.add(property, std::move(handler));
}

void OffscreenWebView::setCustomUserAgent(const std::string& userAgent)
{
    webkit_settings_set_user_agent(webkit_web_view_get_settings(view_.get()), userAgent.c_str());
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
    if (!self->output_.fail(reason))
        self->fail(reason);
}

} // namespace gtk
