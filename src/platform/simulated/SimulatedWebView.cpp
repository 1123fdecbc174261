#include "platform/simulated/SimulatedWebView.h"

#include "platform/simulated/Failure.h"
#include "platform/webkit/WKNavigationDelegate.h"

#include <algorithm>

namespace simulated {

SimulatedWebView::SimulatedWebView(
    platform::WKWebViewConfiguration configuration, std::optional<platform::NSRect> frame)
    : configuration(std::move(configuration))
    , frame(frame)
{
}

platform::NSRect SimulatedWebView::bounds() const
{
    return frame ? platform::NSRect{{}, frame->size} : platform::NSRect();
}

void SimulatedWebView::createPDF(const platform::WKPDFConfiguration&,
    std::function<void(const std::variant<platform::Data, platform::NSError>&)> completion)
{
    pendingPDFs_.push_back(std::move(completion));
}

void SimulatedWebView::simulatePDF(const std::variant<platform::Data, platform::NSError>& result)
{
    if (pendingPDFs_.empty())
        return fail("nobody waits for a PDF document");
    const auto completion = std::move(pendingPDFs_.front());
    pendingPDFs_.pop_front();
    completion(result);
}

std::shared_ptr<platform::NSPrintOperation> SimulatedWebView::printOperation(
    const platform::NSPrintInfo& printInfo)
{
    prints.push_back(std::make_shared<SimulatedPrintOperation>(printInfo));
    return prints.back();
}

void SimulatedWebView::simulateFinishNavigation()
{
    if (const auto delegate = navigationDelegate.lock())
        delegate->didFinishNavigation(*this);
}

void SimulatedWebView::simulateFailNavigation(const std::string& error)
{
    if (const auto delegate = navigationDelegate.lock())
        delegate->didFailNavigation(*this, {error});
}

void SimulatedWebView::simulateFailProvisionalNavigation(const std::string& error)
{
    if (const auto delegate = navigationDelegate.lock())
        delegate->didFailProvisionalNavigation(*this, {error});
}

void SimulatedWebView::find(const std::string& text,
    const platform::WKFindConfiguration& configuration,
    std::function<void(const platform::WKFindResult&)> completion)
{
    searches.push_back({text, configuration});
    pendingSearches_.push_back(std::move(completion));
}

void SimulatedWebView::simulateFindResult(bool matchFound)
{
    if (pendingSearches_.empty()) {
        fail("nobody has searched the page");
        return;
    }
    const auto completion = std::move(pendingSearches_.front());
    pendingSearches_.pop_front();
    completion({.matchFound = matchFound});
}

void SimulatedWebView::goBack()
{
    if (canGoBack_)
        ++stepsBack;
}

void SimulatedWebView::goForward()
{
    if (canGoForward_)
        ++stepsForward;
}

SimulatedWebView::Observation SimulatedWebView::observe(
    Property property, std::function<void()> handler)
{
    auto observer = std::make_shared<Observer>(Observer{property, std::move(handler)});
    observers_.push_back(observer);
    observer->handler();
    return observer;
}

void SimulatedWebView::setCustomUserAgent(const std::string& userAgent)
{
    settings.customUserAgent = userAgent;
}

void SimulatedWebView::setAllowsBackForwardNavigationGestures(bool isAllowed)
{
    settings.allowsBackForwardNavigationGestures = isAllowed;
}

void SimulatedWebView::setAllowsMagnification(bool isAllowed)
{
    settings.allowsMagnification = isAllowed;
}

void SimulatedWebView::setUsesOverlayScrollers(bool isOverlay)
{
    settings.usesOverlayScrollers = isOverlay;
}

void SimulatedWebView::setDrawsBackground(bool isDrawn)
{
    settings.drawsBackground = isDrawn;
}

void SimulatedWebView::simulateHistory(bool canGoBack, bool canGoForward)
{
    canGoBack_ = canGoBack;
    canGoForward_ = canGoForward;
    notify(Property::canGoBack);
    notify(Property::canGoForward);
}

void SimulatedWebView::simulateLoading(bool isLoading, double progress)
{
    isLoading_ = isLoading;
    estimatedProgress_ = progress;
    notify(Property::isLoading);
    notify(Property::estimatedProgress);
}

void SimulatedWebView::simulateTitle(const std::string& title)
{
    title_ = title;
    notify(Property::title);
}

void SimulatedWebView::simulateMessage(const std::string& name, platform::Value body)
{
    const auto& handlers = configuration.userContentController.scriptMessageHandlers;
    const auto found =
        std::ranges::find(handlers, name, &platform::WKUserContentController::MessageHandler::name);
    if (found == handlers.end())
        return fail("nobody is registered for messages to \"" + name + "\"");
    if (const auto handler = found->handler.lock())
        handler->userContentControllerDidReceiveScriptMessage({name, std::move(body)});
}

std::size_t SimulatedWebView::observationCount() const
{
    return static_cast<std::size_t>(std::ranges::count_if(
        observers_, [](const auto& observer) { return !observer.expired(); }));
}

void SimulatedWebView::notify(Property property)
{
    const auto observers = observers_; // a handler may observe, or stop
    for (const auto& weakObserver : observers) {
        const auto observer = weakObserver.lock();
        if (observer && observer->property == property)
            observer->handler();
    }
}

} // namespace simulated
