#pragma once

#include "platform/simulated/SimulatedPlace.h"
#include "platform/simulated/SimulatedPrintOperation.h"
#include "platform/webkit/WKWebView.h"
#include "platform/webkit/WKWebViewConfiguration.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace simulated {

// A web view without a web: it records what it is asked to do and shows what the test says that the
// page shows.
class SimulatedWebView final : public platform::WKWebView, public SimulatedPlace {
public:
    struct Search {
        std::string text;
        platform::WKFindConfiguration configuration;
    };

    // A setting is absent until it is set.
    struct Settings {
        std::optional<std::string> customUserAgent;
        std::optional<double> pageZoom;
        std::optional<bool> allowsBackForwardNavigationGestures;
        std::optional<bool> allowsMagnification;
        std::optional<bool> usesOverlayScrollers;
        std::optional<bool> drawsBackground;
    };

    struct Document {
        std::string html;
        std::optional<platform::URL> baseURL;
    };

    // With a frame, the view is one that is shown nowhere.
    explicit SimulatedWebView(platform::WKWebViewConfiguration configuration,
        std::optional<platform::NSRect> frame = std::nullopt);

    platform::NSWindow* window() const override
    {
        return offscreenWindow ? offscreenWindow : windowOfHost();
    }
    platform::NSRect bounds() const override;

    void load(const platform::URLRequest& request) override { loads.push_back(request); }
    void loadHTMLString(
        const std::string& html, const std::optional<platform::URL>& baseURL) override
    {
        documents.push_back({html, baseURL});
    }
    void evaluateJavaScript(const std::string& script) override { scripts.push_back(script); }
    void find(const std::string& text, const platform::WKFindConfiguration& configuration,
        std::function<void(const platform::WKFindResult&)> completion) override;
    void createPDF(const platform::WKPDFConfiguration& configuration,
        std::function<void(const std::variant<platform::Data, platform::NSError>&)> completion)
        override;
    std::shared_ptr<platform::NSPrintOperation> printOperation(
        const platform::NSPrintInfo& printInfo) override;
    void goBack() override;
    void goForward() override;

    bool canGoBack() const override { return canGoBack_; }
    bool canGoForward() const override { return canGoForward_; }
    bool isLoading() const override { return isLoading_; }
    double estimatedProgress() const override { return estimatedProgress_; }
    std::string title() const override { return title_; }

    Observation observe(Property property, std::function<void()> handler) override;

    void setPageZoom(double factor) override { settings.pageZoom = factor; }
    void setCustomUserAgent(const std::string& userAgent) override;
    void setAllowsBackForwardNavigationGestures(bool isAllowed) override;
    void setAllowsMagnification(bool isAllowed) override;
    void setUsesOverlayScrollers(bool isOverlay) override;
    void setDrawsBackground(bool isDrawn) override;

    // What the page does. Observers are told at once.
    void simulateHistory(bool canGoBack, bool canGoForward);
    void simulateLoading(bool isLoading, double progress);
    void simulateTitle(const std::string& title);

    // The page posts `body` to the handler registered under `name`; fails the test when there is no
    // such handler.
    void simulateMessage(const std::string& name, platform::Value body);

    // The oldest search that waits for an answer gets one; fails the test when no search waits.
    void simulateFindResult(bool matchFound);

    // How a load ends. The navigation delegate is told at once.
    void simulateFinishNavigation();
    void simulateFailNavigation(const std::string& error);
    void simulateFailProvisionalNavigation(const std::string& error);

    // The oldest document that waits to be made is there, or could not be made; fails the test when
    // no document waits.
    void simulatePDF(const std::variant<platform::Data, platform::NSError>& result);

    // How many observations are running.
    std::size_t observationCount() const;

    const platform::WKWebViewConfiguration configuration;
    const std::optional<platform::NSRect> frame;
    platform::NSWindow* offscreenWindow = nullptr; // which is made for such views alone
    Settings settings;
    std::vector<Document> documents;
    std::vector<std::shared_ptr<SimulatedPrintOperation>> prints;
    std::vector<platform::URLRequest> loads;
    std::vector<std::string> scripts;
    std::vector<Search> searches;
    int stepsBack = 0;
    int stepsForward = 0;

private:
    struct Observer {
        Property property;
        std::function<void()> handler;
    };

    void notify(Property property);

    std::vector<std::weak_ptr<Observer>> observers_;
    std::deque<std::function<void(const platform::WKFindResult&)>> pendingSearches_;
    std::deque<std::function<void(const std::variant<platform::Data, platform::NSError>&)>>
        pendingPDFs_;
    bool canGoBack_ = false;
    bool canGoForward_ = false;
    bool isLoading_ = false;
    double estimatedProgress_ = 0;
    std::string title_;
};

} // namespace simulated
