#include "web/WebView.h"

#include "platform/foundation/Bundle.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/Platform.h"
#include "platform/webkit/WKWebViewConfiguration.h"
#include "service/Service.h"
#include "web/DroppableWebView.h"
#include "web/OnboardingKeys.h"
#include "web/UserScripts.h"

namespace velmaro {

using platform::URL;
using platform::URLRequest;
using platform::UserDefaults;
using platform::WKUserContentController;
using platform::WKUserScript;
using platform::WKWebView;
using platform::WKWebViewConfiguration;

namespace {

constexpr double startRequestTimeout = 60; // seconds

WKUserContentController userContentController(Coordinator& coordinator)
{
    WKUserContentController controller;
    controller.userScripts = {
        {UserScripts::platformMarker, WKUserScript::InjectionTime::atDocumentStart, true},
        {UserScripts::signInWatcher, WKUserScript::InjectionTime::atDocumentEnd, true},
    };
    for (const auto& rule : coordinator.pageMessages)
        controller.scriptMessageHandlers.push_back({rule.name, coordinator.weak_from_this()});
    return controller;
}

WKWebViewConfiguration configuration(Coordinator& coordinator)
{
    WKWebViewConfiguration configuration;
    configuration.websiteDataStore = platform::WKWebsiteDataStore::defaultDataStore;
    configuration.preferences.javaScriptCanOpenWindowsAutomatically = true;
    configuration.userContentController = userContentController(coordinator);
    return configuration;
}

// The service's own addresses are valid: its origin was checked.
URL serviceURL(const std::string& text)
{
    return *URL::fromString(text);
}

} // namespace

std::shared_ptr<Coordinator> WebView::makeCoordinator() const
{
    return std::make_shared<Coordinator>(model, pageMessages);
}

std::shared_ptr<WKWebView> WebView::makeNSView(Coordinator& coordinator) const
{
    auto webView = platform::Platform::current().makeWebView(configuration(coordinator));
    webView->setAllowsBackForwardNavigationGestures(true);
    webView->setAllowsMagnification(true);
    webView->setCustomUserAgent(userAgentString());

    webView->navigationDelegate = coordinator.weak_from_this();
    webView->uiDelegate = coordinator.weak_from_this();
    const auto droppable = std::make_shared<DroppableWebView>(*webView);
    droppable->dropRouter = coordinator.weak_from_this();
    webView->draggingDestination = droppable;

    coordinator.observe(webView);
    model->webView = webView;
    webView->setPageZoom(zoomPercent / 100.0);
    styleScrollViews(*webView);
    webView->load({startURL(*model), URLRequest::CachePolicy::reloadRevalidatingCacheData,
        startRequestTimeout});
    return webView;
}

void WebView::updateNSView(WKWebView& webView, Coordinator&) const
{
    styleScrollViews(webView);
    webView.setPageZoom(zoomPercent / 100.0);
}

URL startURL(const WebModel& model)
{
    const auto& service = Service::current();
    if (model.initialRoute && !model.initialRoute->empty()) {
        if (const auto url = URL::fromString(service.onlineURL() + "#" + *model.initialRoute))
            return *url;
    }

    auto& defaults = UserDefaults::standard();
    if (defaults.boolean(OnboardingKeys::shown))
        return serviceURL(service.onlineURL());
    defaults.setBoolean(OnboardingKeys::shown, true);
    return serviceURL(service.welcomeURL());
}

std::string userAgentString()
{
    const auto version =
        platform::Bundle::main().stringForInfoDictionaryKey("CFBundleShortVersionString");
    return "Mozilla/5.0 (Macintosh; Intel Mac OS X) AppleWebKit/605.1.15 (KHTML, like Gecko) "
           "VelmaroOnline/"
        + version.value_or("1.0") + " Safari/605.1.15";
}

void styleScrollViews(WKWebView& webView)
{
    webView.setUsesOverlayScrollers(true);
    webView.setDrawsBackground(false);
}

} // namespace velmaro
