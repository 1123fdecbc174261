#pragma once

#include "platform/foundation/UUID.h"
#include "platform/webkit/WKNavigationDelegate.h"

#include <memory>
#include <string>

namespace velmaro {

// One report on its way from loading to paper or file. The downloader owns it until it ends. Main
// thread only.
class ReportJob : public platform::WKNavigationDelegate,
                  public std::enable_shared_from_this<ReportJob> {
public:
    const platform::UUID id; // of the job
    const std::string title; // of the report

    void didFinishNavigation(platform::WKWebView& webView) final;
    void didFailNavigation(platform::WKWebView&, const platform::NSError& error) final;
    void didFailProvisionalNavigation(platform::WKWebView&, const platform::NSError& error) final;

protected:
    // `loadFailure` introduces the reason when the document cannot be loaded.
    ReportJob(const platform::UUID& id, std::string title, std::string loadFailure);

    // The document is there and has settled. Whatever comes of it calls `end` or `fail`, once.
    virtual void carryOut(platform::WKWebView& webView) = 0;

    // Tells the user why there is no report, and ends.
    void fail(const std::string& text) const;

    // Leaves the downloader.
    void end() const;

private:
    const std::string loadFailure_;
};

} // namespace velmaro
