#pragma once

#include "platform/foundation/Data.h"
#include "platform/foundation/UUID.h"
#include "platform/webkit/WKNavigationDelegate.h"

#include <memory>
#include <optional>
#include <string>
#include <variant>

namespace velmaro {

// Sees one report through from its loading to its PDF file, and tells the user what came of it.
class LoadDelegate final : public platform::WKNavigationDelegate,
                           public std::enable_shared_from_this<LoadDelegate> {
public:
    LoadDelegate(const platform::UUID& id, std::string title, std::optional<std::string> filename);

    const platform::UUID id; // of the job
    const std::string title; // of the report
    const std::optional<std::string> filename; // asked for by the page, without ".pdf"

    void didFinishNavigation(platform::WKWebView& webView) override;
    void didFailNavigation(platform::WKWebView&, const platform::NSError& error) override;
    void didFailProvisionalNavigation(
        platform::WKWebView&, const platform::NSError& error) override;

private:
    void render(platform::WKWebView& webView);
    void save(const platform::Data& document) const;
    void fail(const std::string& text) const;
    void end() const;
};

} // namespace velmaro
