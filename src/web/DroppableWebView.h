#pragma once

#include "platform/appkit/NSDraggingDestination.h"
#include "platform/webkit/WKWebView.h"

#include <memory>
#include <optional>
#include <string>

namespace velmaro {

// Takes over what was read from a dropped file.
class DroppableWebViewDelegate {
public:
    virtual ~DroppableWebViewDelegate() = default;

    // `text` is all that is in `file`, which was dropped on `webView`.
    virtual void didDropFile(
        platform::WKWebView& webView, const platform::URL& file, std::string text) = 0;
};

// What makes a web view take text files that are dropped on it. All other drops reach its page.
class DroppableWebView final : public platform::NSDraggingDestination {
public:
    // `webView` owns this one.
    explicit DroppableWebView(platform::WKWebView& webView)
        : webView_(webView)
    {
    }

    std::weak_ptr<DroppableWebViewDelegate> dropRouter;

    bool takesDrag(const platform::NSDraggingInfo& dragging) const override;
    bool performDragOperation(const platform::NSDraggingInfo& dragging) override;

private:
    platform::WKWebView& webView_;
};

// The first of the dragged files whose content can be imported.
std::optional<platform::URL> acceptableDroppedFile(const platform::NSDraggingInfo& dragging);

} // namespace velmaro
