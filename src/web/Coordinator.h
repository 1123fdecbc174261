#pragma once

#include "platform/webkit/WKDownload.h"
#include "platform/webkit/WKNavigationDelegate.h"
#include "platform/webkit/WKScriptMessageHandler.h"
#include "platform/webkit/WKUIDelegate.h"
#include "platform/webkit/WKWebView.h"
#include "web/DroppableWebView.h"
#include "web/PageMessageRules.h"
#include "web/WebModel.h"

#include <map>
#include <memory>
#include <vector>

namespace velmaro {

// Stands between one web view and its tab's model. It keeps the model's mirrors of the web view up
// to date, receives what pages post and the files that are dropped on them, decides where they may
// go, and saves what they offer for download.
class Coordinator final : public platform::WKScriptMessageHandler,
                          public platform::WKNavigationDelegate,
                          public platform::WKUIDelegate,
                          public platform::WKDownloadDelegate,
                          public DroppableWebViewDelegate,
                          public std::enable_shared_from_this<Coordinator> {
public:
    Coordinator(std::shared_ptr<WebModel> model, PageMessageRules pageMessages)
        : model(std::move(model))
        , pageMessages(std::move(pageMessages))
    {
    }

    const std::shared_ptr<WebModel> model;
    const PageMessageRules pageMessages; // what the page can ask for
    std::vector<platform::WKWebView::Observation> observations;

    // Mirrors the navigation state of `webView` from now on, in place of whatever was observed
    // before.
    void observe(const std::shared_ptr<platform::WKWebView>& webView);

    void userContentControllerDidReceiveScriptMessage(
        const platform::WKScriptMessage& message) override;

    // Decides at once.
    void decidePolicy(platform::WKWebView& webView, const platform::WKNavigationAction& action,
        const std::function<void(platform::WKNavigationActionPolicy)>& decide) override;

    // Always null: what may be shown replaces the page of the same tab.
    std::shared_ptr<platform::WKWebView> createWebView(
        platform::WKWebView& webView, const platform::WKNavigationAction& action) override;

    void runOpenPanel(platform::WKWebView& webView,
        const platform::WKOpenPanelParameters& parameters,
        std::function<void(const std::optional<std::vector<platform::URL>>&)> choose) override;

    void didDropFile(
        platform::WKWebView& webView, const platform::URL& file, std::string text) override;

    // Where the running downloads are to be found at their end.
    std::map<const platform::WKDownload*, platform::URL> downloadDestinations;

    void navigationActionDidBecomeDownload(
        platform::WKWebView&, const std::shared_ptr<platform::WKDownload>& download) override;
    void navigationResponseDidBecomeDownload(
        platform::WKWebView&, const std::shared_ptr<platform::WKDownload>& download) override;
    void decideDestination(const std::shared_ptr<platform::WKDownload>& download,
        const std::string& suggestedFilename,
        const std::function<void(const std::optional<platform::URL>&)>& decide) override;
    void downloadDidFinish(const std::shared_ptr<platform::WKDownload>& download) override;
    void downloadDidFail(const std::shared_ptr<platform::WKDownload>& download,
        const platform::NSError& error) override;
};

} // namespace velmaro
