#pragma once

#include "platform/gtk/printing/PageDocument.h"
#include "platform/gtk/printing/PrintOperation.h"
#include "platform/gtk/webkit/GtkUserContentController.h"
#include "platform/gtk/webkit/PageSearch.h"
#include "platform/webkit/WKWebView.h"
#include "platform/webkit/WKWebViewConfiguration.h"

#include <initializer_list>
#include <vector>

namespace gtk {

class WebEngine;

// What the web view of a tab and one off the screen have in common: the engine's view, the scripts
// in its pages, what is observed of them, and the documents and prints that are made of them.
//
// No page can open a dialog, get a permission, print, or hold back a user who leaves.
class EngineView : public platform::WKWebView {
public:
    EngineView(const EngineView&) = delete;
    EngineView& operator=(const EngineView&) = delete;

    // The engine's view, which lives at least as long as this.
    WebKitWebView* native() const { return view_.get(); }

    void loadHTMLString(
        const std::string& html, const std::optional<platform::URL>& baseURL) override;
    void evaluateJavaScript(const std::string& script) override;
    void find(const std::string& text, const platform::WKFindConfiguration& configuration,
        std::function<void(const platform::WKFindResult&)> completion) override;
    void createPDF(const platform::WKPDFConfiguration&,
        std::function<void(const PageDocument::Result&)> completion) override;
    std::shared_ptr<platform::NSPrintOperation> printOperation(
        const platform::NSPrintInfo& printInfo) override;
    void goBack() override;
    void goForward() override;
    bool canGoBack() const override;
    bool canGoForward() const override;
    bool isLoading() const override;
    double estimatedProgress() const override;
    std::string title() const override;
    Observation observe(Property property, std::function<void()> handler) override;
    void setCustomUserAgent(const std::string& userAgent) override;

protected:
    // Pages run in the content process of `companion`, or in one of their own when it is null.
    EngineView(WebEngine& engine, const platform::WKWebViewConfiguration& configuration,
        WebKitWebView* companion = nullptr);

    // Whether messages of the page reach the handlers; they are dropped otherwise.
    virtual bool acceptsMessages() const { return true; }

    // Calls the observers of these properties. They may add and drop observations, and destroy
    // this.
    void changed(std::initializer_list<Property> properties);

    // Ends the documents that are being made of the page, because it has gone. False when there
    // are none.
    bool failDocuments(const std::string& reason);

private:
    struct Observer {
        Property property;
        std::weak_ptr<std::function<void()>> handler;
    };

    void watch();

    GtkUserContentController content_;
    const ObjectPointer<WebKitWebView> view_;
    PageSearch search_;
    std::vector<Observer> observers_; // of the view's properties
    const std::shared_ptr<PrintChoice> printChoice_;
    std::vector<std::shared_ptr<PageDocument>> documents_; // not done yet
    std::vector<std::shared_ptr<PrintOperation>> prints_;
    SignalHandlers signals_;
};

// Makes `view` load the page at `address`.
void loadAddress(WebKitWebView* view, const std::string& address,
    platform::URLRequest::CachePolicy policy =
        platform::URLRequest::CachePolicy::useProtocolCachePolicy);

} // namespace gtk
