#include "reports/LoadDelegate.h"

#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/FileManager.h"
#include "platform/webkit/WKWebView.h"
#include "reports/ReportAlerts.h"
#include "reports/ReportFileName.h"

namespace velmaro {

using platform::Data;
using platform::NSError;

LoadDelegate::LoadDelegate(
    const platform::UUID& id, std::string title, std::optional<std::string> filename)
    : ReportJob(id, std::move(title), "Report preview failed to load: ")
    , filename(std::move(filename))
{
}

void LoadDelegate::carryOut(platform::WKWebView& webView)
{
    webView.createPDF(
        {}, [this, self = shared_from_this()](const std::variant<Data, NSError>& result) {
            platform::DispatchQueue::main().async([this, self, result] {
                if (const auto* error = std::get_if<NSError>(&result))
                    fail("Couldn't generate PDF: " + error->localizedDescription);
                else
                    save(std::get<Data>(result));
            });
        });
}

void LoadDelegate::save(const Data& document) const
{
    const auto file = reportFileURL(filename.value_or(title), std::chrono::system_clock::now());
    if (const auto error = platform::FileManager::defaultManager().writeAtomically(document, file))
        return fail("Couldn't save PDF: " + error->localizedDescription);
    showReportSavedAlert(file);
    end();
}

} // namespace velmaro
