#include "web/Coordinator.h"

#include "platform/appkit/NSOpenPanel.h"
#include "platform/appkit/NSWorkspace.h"
#include "platform/foundation/DispatchQueue.h"
#include "web/NavigationPolicy.h"
#include "web/PageScripts.h"

namespace velmaro {

using platform::DispatchQueue;
using platform::NSWorkspace;
using platform::WKNavigationAction;
using platform::WKNavigationActionPolicy;
using platform::WKWebView;

void Coordinator::observe(const std::shared_ptr<WKWebView>& webView)
{
    observations.clear();

    // Each change only queues a task, which reads the value that holds by then.
    const auto mirror = [&](WKWebView::Property property, auto copy) {
        auto task = [weakSelf = weak_from_this(), weakView = std::weak_ptr(webView), copy] {
            const auto self = weakSelf.lock();
            const auto view = weakView.lock();
            if (self && view)
                copy(*self->model, *view);
        };
        observations.push_back(webView->observe(
            property, [task = std::move(task)] { DispatchQueue::main().async(task); }));
    };

    using enum WKWebView::Property;
    mirror(canGoBack, [](auto& model, const auto& view) { model.canGoBack = view.canGoBack(); });
    mirror(canGoForward,
        [](auto& model, const auto& view) { model.canGoForward = view.canGoForward(); });
    mirror(isLoading, [](auto& model, const auto& view) { model.isLoading = view.isLoading(); });
    mirror(estimatedProgress,
        [](auto& model, const auto& view) { model.estimatedProgress = view.estimatedProgress(); });
    mirror(title, [](auto& model, const auto& view) { model.pageTitle = view.title(); });
}

void Coordinator::userContentControllerDidReceiveScriptMessage(
    const platform::WKScriptMessage& message)
{
    auto action = actionForPageMessage(pageMessages, message);
    if (!action)
        return;
    DispatchQueue::main().async([weakSelf = weak_from_this(), action = std::move(action)] {
        if (const auto self = weakSelf.lock())
            action(*self->model);
    });
}

void Coordinator::decidePolicy(WKWebView&, const WKNavigationAction& action,
    const std::function<void(WKNavigationActionPolicy)>& decide)
{
    if (action.shouldPerformDownload)
        return decide(WKNavigationActionPolicy::download);
    if (!action.requestURL)
        return decide(WKNavigationActionPolicy::cancel);

    const auto use = useOfNavigation(*action.requestURL, Service::current());
    if (use == AddressUse::withSystem)
        NSWorkspace::shared().open(*action.requestURL);
    decide(use == AddressUse::inTab ? WKNavigationActionPolicy::allow
                                    : WKNavigationActionPolicy::cancel);
}

std::shared_ptr<WKWebView> Coordinator::createWebView(
    WKWebView& webView, const WKNavigationAction& action)
{
    if (!action.requestURL)
        return nullptr;
    switch (useOfNewWindow(*action.requestURL, Service::current())) {
    case AddressUse::inTab:
        webView.load({*action.requestURL});
        break;
    case AddressUse::withSystem:
        NSWorkspace::shared().open(*action.requestURL);
        break;
    case AddressUse::none:
        break;
    }
    return nullptr;
}

void Coordinator::runOpenPanel(WKWebView&, const platform::WKOpenPanelParameters& parameters,
    std::function<void(const std::optional<std::vector<platform::URL>>&)> choose)
{
    const platform::NSOpenPanel panel{
        .canChooseFiles = true,
        .canChooseDirectories = false,
        .allowsMultipleSelection = parameters.allowsMultipleSelection,
    };
    panel.begin(std::move(choose));
}

void Coordinator::didDropFile(WKWebView& webView, const platform::URL& file, std::string text)
{
    // A statement of its own, after which the text has gone: the engine copies the script.
    const auto script = PageScripts::importText(file.lastPathComponent(), std::move(text));
    webView.evaluateJavaScript(script);
}

} // namespace velmaro
