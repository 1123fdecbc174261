#include "web/Coordinator.h"

#include "platform/foundation/DispatchQueue.h"
#include "web/PageMessages.h"
#include "web/PageScripts.h"

namespace velmaro {

using platform::DispatchQueue;
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
    auto action = actionForPageMessage(message);
    if (!action)
        return;
    DispatchQueue::main().async([weakSelf = weak_from_this(), action = std::move(action)] {
        if (const auto self = weakSelf.lock())
            action(*self->model);
    });
}

void Coordinator::didDropFile(WKWebView& webView, const platform::URL& file, std::string text)
{
    // A statement of its own, after which the text has gone: the engine copies the script.
    const auto script = PageScripts::importText(file.lastPathComponent(), std::move(text));
    webView.evaluateJavaScript(script);
}

} // namespace velmaro
