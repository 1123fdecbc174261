#pragma once

#include "platform/webkit/WKWebView.h"
#include "web/Coordinator.h"
#include "web/WebModel.h"

#include <memory>
#include <string>

namespace velmaro {

// The place of one tab's web view among the declared views. The web view is built when the tab is
// first shown or loaded ahead.
struct WebView {
    using Coordinator = velmaro::Coordinator;
    using NSViewType = platform::WKWebView;
    static constexpr bool waitsForFirstFrame = true;

    std::shared_ptr<WebModel> model;
    PageMessageRules pageMessages = {}; // what its page can ask for
    int zoomPercent = 100;

    std::shared_ptr<Coordinator> makeCoordinator() const;
    std::shared_ptr<platform::WKWebView> makeNSView(Coordinator& coordinator) const;
    void updateNSView(platform::WKWebView& webView, Coordinator& coordinator) const;
};

// The address that a tab loads first. A tab without a usable route opens the welcome page on a
// fresh installation, and notes that it was shown; afterwards the service's start page.
platform::URL startURL(const WebModel& model);

// What web views call themselves towards the service.
std::string userAgentString();

// Overlay scrollers and no background of the view's own.
void styleScrollViews(platform::WKWebView& webView);

} // namespace velmaro
