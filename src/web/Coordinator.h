#pragma once

#include "platform/webkit/WKScriptMessageHandler.h"
#include "platform/webkit/WKWebView.h"
#include "web/WebModel.h"

#include <memory>
#include <vector>

namespace velmaro {

// Stands between one web view and its tab's model. It keeps the model's mirrors of the web view up
// to date and receives what pages post.
class Coordinator final : public platform::WKScriptMessageHandler,
                          public std::enable_shared_from_this<Coordinator> {
public:
    explicit Coordinator(std::shared_ptr<WebModel> model)
        : model(std::move(model))
    {
    }

    const std::shared_ptr<WebModel> model;
    std::vector<platform::WKWebView::Observation> observations;

    // Mirrors the navigation state of `webView` from now on, in place of whatever was observed
    // before.
    void observe(const std::shared_ptr<platform::WKWebView>& webView);

    void userContentControllerDidReceiveScriptMessage(
        const platform::WKScriptMessage& message) override;
};

} // namespace velmaro
