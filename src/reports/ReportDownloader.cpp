#include "reports/ReportDownloader.h"

#include "platform/Platform.h"
#include "platform/webkit/WKWebViewConfiguration.h"
#include "reports/LoadDelegate.h"
#include "reports/PrintDelegate.h"
#include "service/Service.h"

namespace velmaro {

using platform::Platform;
using platform::URL;
using platform::UUID;

namespace {

// 8.5 by 11 inches at 96 points an inch.
constexpr platform::NSRect pageFrame{{0, 0}, {816, 1056}};

} // namespace

ReportDownloader& ReportDownloader::shared()
{
    return Platform::current().shared<ReportDownloader>();
}

void ReportDownloader::savePDF(
    const std::string& title, const std::optional<std::string>& filename, const std::string& html)
{
    start(std::make_shared<LoadDelegate>(UUID(), title, filename), html);
}

void ReportDownloader::printReport(const std::string& title, const std::string& html)
{
    start(std::make_shared<PrintDelegate>(UUID(), title), html);
}

void ReportDownloader::start(const std::shared_ptr<ReportJob>& job, const std::string& html)
{
    const auto webView = Platform::current().makeWebView(pageFrame, {});
    webView->navigationDelegate = job;
    pending.emplace(job->id, Session{webView, job});
    webView->loadHTMLString(html, URL::fromString(Service::current().serviceOrigin() + "/"));
}

} // namespace velmaro
