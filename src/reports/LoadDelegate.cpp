#include "reports/LoadDelegate.h"

#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/FileManager.h"
#include "platform/webkit/WKWebView.h"
#include "reports/ReportAlerts.h"
#include "reports/ReportDownloader.h"
#include "reports/ReportFileName.h"
#include "reports/SettleDelay.h"

namespace velmaro {

using platform::Data;
using platform::DispatchQueue;
using platform::FileManager;
using platform::NSError;
using platform::WKWebView;

LoadDelegate::LoadDelegate(
    const platform::UUID& id, std::string title, std::optional<std::string> filename)
    : id(id)
    , title(std::move(title))
    , filename(std::move(filename))
{
}

void LoadDelegate::didFinishNavigation(WKWebView& webView)
{
    DispatchQueue::main().asyncAfter(
        settleDelay, [self = shared_from_this(), weakView = webView.weak_from_this()] {
            if (const auto view = weakView.lock())
                self->render(static_cast<WKWebView&>(*view));
        });
}

void LoadDelegate::didFailNavigation(WKWebView&, const NSError& error)
{
    DispatchQueue::main().async([self = shared_from_this(), error] {
        self->fail("Report preview failed to load: " + error.localizedDescription);
    });
}

void LoadDelegate::didFailProvisionalNavigation(WKWebView& webView, const NSError& error)
{
    didFailNavigation(webView, error);
}

void LoadDelegate::render(WKWebView& webView)
{
    webView.createPDF({}, [self = shared_from_this()](const std::variant<Data, NSError>& result) {
        DispatchQueue::main().async([self, result] {
            if (const auto* error = std::get_if<NSError>(&result))
                self->fail("Couldn't generate PDF: " + error->localizedDescription);
            else
                self->save(std::get<Data>(result));
        });
    });
}

void LoadDelegate::save(const Data& document) const
{
    const auto file = reportFileURL(filename.value_or(title), std::chrono::system_clock::now());
    if (const auto error = FileManager::defaultManager().writeAtomically(document, file))
        return fail("Couldn't save PDF: " + error->localizedDescription);
    showReportSavedAlert(file);
    end();
}

void LoadDelegate::fail(const std::string& text) const
{
    showReportErrorAlert(text);
    end();
}

void LoadDelegate::end() const
{
    ReportDownloader::shared().pending.erase(id);
}

} // namespace velmaro
