#include "reports/ReportJob.h"

#include "platform/foundation/DispatchQueue.h"
#include "platform/webkit/WKWebView.h"
#include "reports/ReportAlerts.h"
#include "reports/ReportDownloader.h"

namespace velmaro {

using platform::DispatchQueue;
using platform::NSError;
using platform::WKWebView;

namespace {

constexpr double settleDelay = 0.35; // seconds that a document gets after its loading

} // namespace

ReportJob::ReportJob(const platform::UUID& id, std::string title, std::string loadFailure)
    : id(id)
    , title(std::move(title))
    , loadFailure_(std::move(loadFailure))
{
}

void ReportJob::didFinishNavigation(WKWebView& webView)
{
    DispatchQueue::main().asyncAfter(
        settleDelay, [self = shared_from_this(), weakView = webView.weak_from_this()] {
            if (const auto view = weakView.lock())
                self->carryOut(static_cast<WKWebView&>(*view));
        });
}

void ReportJob::didFailNavigation(WKWebView&, const NSError& error)
{
    DispatchQueue::main().async([self = shared_from_this(), error] {
        self->fail(self->loadFailure_ + error.localizedDescription);
    });
}

void ReportJob::didFailProvisionalNavigation(WKWebView& webView, const NSError& error)
{
    didFailNavigation(webView, error);
}

void ReportJob::fail(const std::string& text) const
{
    showReportErrorAlert(text);
    end();
}

void ReportJob::end() const
{
    ReportDownloader::shared().pending.erase(id);
}

} // namespace velmaro
