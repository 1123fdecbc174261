#include "platform/gtk/webkit/EngineView.h"

#include "platform/gtk/webkit/WebEngine.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace gtk {

namespace {

ObjectPointer<WebKitWebView> makeView(WebEngine& engine,
    const platform::WKWebViewConfiguration& configuration, WebKitUserContentManager* content,
    WebKitWebView* companion)
{
    const auto session = engine.session(configuration.websiteDataStore);
    const auto settings = engine.makeSettings(configuration.preferences);
    // A companion brings its session along with its process.
    auto* view = g_object_new(WEBKIT_TYPE_WEB_VIEW, "settings", settings.get(),
        "user-content-manager", content, companion ? "related-view" : "network-session",
        companion ? static_cast<gpointer>(companion) : session.get(), nullptr);
    return retain(WEBKIT_WEB_VIEW(view));
}

gboolean printNothing(WebKitWebView*)
{
    return TRUE;
}

// Untouched, an alert returns, a confirmation is false and a prompt is null.
gboolean answerDialog(WebKitWebView*, WebKitScriptDialog* dialog)
{
    if (webkit_script_dialog_get_dialog_type(dialog) == WEBKIT_SCRIPT_DIALOG_BEFORE_UNLOAD_CONFIRM)
        webkit_script_dialog_confirm_set_confirmed(dialog, TRUE);
    return TRUE;
}

gboolean denyPermission(WebKitWebView*, WebKitPermissionRequest* request)
{
    webkit_permission_request_deny(request);
    return TRUE;
}

// The page then shows the server's answer without a password. A proxy's question is between the
// user and the network, and stays.
gboolean goOnWithoutPassword(WebKitWebView*, WebKitAuthenticationRequest* request)
{
    if (webkit_authentication_request_is_for_proxy(request))
        return FALSE;
    webkit_authentication_request_authenticate(request, nullptr);
    return TRUE;
}

void refusePageRequests(WebKitWebView* view)
{
    g_signal_connect(view, "script-dialog", G_CALLBACK(answerDialog), nullptr);
    g_signal_connect(view, "permission-request", G_CALLBACK(denyPermission), nullptr);
    g_signal_connect(view, "authenticate", G_CALLBACK(goOnWithoutPassword), nullptr);
    g_signal_connect(view, "print", G_CALLBACK(printNothing), nullptr);
}

} // namespace

EngineView::EngineView(WebEngine& engine, const platform::WKWebViewConfiguration& configuration,
    WebKitWebView* companion)
    : content_(configuration.userContentController, [this] { return acceptsMessages(); })
    , view_(makeView(engine, configuration, content_.manager(), companion))
    , search_(view_.get())
    , printChoice_(engine.printChoice())
{
    refusePageRequests(view_.get());
    watch();
}

void EngineView::watch()
{
    const auto connect = [this](gpointer object, const char* signal, auto handler) {
        signals_.connect(object, signal, G_CALLBACK(+handler), this);
    };
    connect(view_.get(), "notify::title",
        [](GObject*, GParamSpec*, EngineView* self) { self->changed({Property::title}); });
    connect(view_.get(), "notify::is-loading",
        [](GObject*, GParamSpec*, EngineView* self) { self->changed({Property::isLoading}); });
    connect(view_.get(), "notify::estimated-load-progress",
        [](GObject*, GParamSpec*, EngineView* self) {
            self->changed({Property::estimatedProgress});
        });
    connect(webkit_web_view_get_back_forward_list(view_.get()), "changed",
        [](WebKitBackForwardList*, WebKitBackForwardListItem*, gpointer, EngineView* self) {
            self->changed({Property::canGoBack, Property::canGoForward});
        });
}

void EngineView::changed(std::initializer_list<Property> properties)
{
    std::erase_if(observers_, [](const auto& observer) { return observer.handler.expired(); });
    const auto observers = observers_;
    for (const auto& [property, weakHandler] : observers) {
        if (std::ranges::find(properties, property) == properties.end())
            continue;
        if (const auto handler = weakHandler.lock())
            (*handler)();
    }
}

EngineView::Observation EngineView::observe(Property property, std::function<void()> handler)
{
    const auto kept = std::make_shared<std::function<void()>>(std::move(handler));
    observers_.push_back({property, kept});
    (*kept)();
    return kept;
}

void EngineView::loadHTMLString(
    const std::string& html, const std::optional<platform::URL>& baseURL)
{
    const auto* base = baseURL ? baseURL->absoluteString().c_str() : nullptr;
    // As bytes, since there may be a NUL in it. The engine does not take an empty document.
    const std::string_view text = html.empty() ? "\n" : std::string_view(html);
    g_autoptr(GBytes) bytes = g_bytes_new(text.data(), text.size());
    webkit_web_view_load_bytes(view_.get(), bytes, "text/html", "UTF-8", base);
}

void EngineView::evaluateJavaScript(const std::string& script)
{
    webkit_web_view_evaluate_javascript(view_.get(), script.data(),
        static_cast<gssize>(script.size()), nullptr, nullptr, nullptr, nullptr, nullptr);
}

void EngineView::find(const std::string& text, const platform::WKFindConfiguration& configuration,
    std::function<void(const platform::WKFindResult&)> completion)
{
    search_.find(text, configuration, std::move(completion));
}

void EngineView::createPDF(const platform::WKPDFConfiguration&,
    std::function<void(const PageDocument::Result&)> completion)
{
    const auto document = std::make_shared<PageDocument>(view_.get());
    documents_.push_back(document);
    document->start([this, weakDocument = std::weak_ptr(document),
                        completion = std::move(completion)](const auto& result) {
        const auto kept = weakDocument.lock(); // until this is over
        std::erase(documents_, kept);
        completion(result);
    });
}

std::shared_ptr<platform::NSPrintOperation> EngineView::printOperation(
    const platform::NSPrintInfo& printInfo)
{
    std::erase_if(prints_, [](const auto& print) { return print->hasEnded(); });
    prints_.push_back(std::make_shared<PrintOperation>(view_.get(), printInfo, printChoice_));
    return prints_.back();
}

bool EngineView::failDocuments(const std::string& reason)
{
    const auto documents = documents_; // their completions may destroy this
    for (const auto& document : documents)
        document->fail(reason);
    return !documents.empty();
}

void EngineView::goBack()
{
    webkit_web_view_go_back(view_.get());
}

void EngineView::goForward()
{
    webkit_web_view_go_forward(view_.get());
}

bool EngineView::canGoBack() const
{
    return webkit_web_view_can_go_back(view_.get());
}

bool EngineView::canGoForward() const
{
    return webkit_web_view_can_go_forward(view_.get());
}

bool EngineView::isLoading() const
{
    return webkit_web_view_is_loading(view_.get());
}

double EngineView::estimatedProgress() const
{
    return webkit_web_view_get_estimated_load_progress(view_.get());
}

std::string EngineView::title() const
{
    const char* title = webkit_web_view_get_title(view_.get());
    return title ? title : "";
}

void EngineView::setCustomUserAgent(const std::string& userAgent)
{
    webkit_settings_set_user_agent(webkit_web_view_get_settings(view_.get()), userAgent.c_str());
}

void loadAddress(
    WebKitWebView* view, const std::string& address, platform::URLRequest::CachePolicy policy)
{
    const ObjectPointer<WebKitURIRequest> request(webkit_uri_request_new(address.c_str()));
    if (policy == platform::URLRequest::CachePolicy::reloadRevalidatingCacheData) {
        auto* headers = webkit_uri_request_get_http_headers(request.get());
        soup_message_headers_replace(headers, "Cache-Control", "max-age=0");
    }
    webkit_web_view_load_request(view, request.get());
}

} // namespace gtk
