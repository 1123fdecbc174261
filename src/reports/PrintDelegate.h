#pragma once

#include "platform/appkit/NSPrintOperation.h"
#include "platform/appkit/NSWindow.h"
#include "reports/ReportJob.h"

#include <memory>
#include <string>

namespace velmaro {

// Sees one report through from its loading to the end of its printing.
class PrintDelegate final : public ReportJob {
public:
    PrintDelegate(const platform::UUID& id, std::string title,
        std::shared_ptr<platform::NSWindow> hostWindow = nullptr);

    // Holds the web view while it prints; null before and after.
    std::shared_ptr<platform::NSWindow> hostWindow;

    // The print has ended, one way or the other, and with it the job.
    void printDidRun(platform::NSPrintOperation& operation, bool success);

private:
    void carryOut(platform::WKWebView& webView) override;
    std::shared_ptr<platform::NSWindow> sheetWindow() const;
    void closeHostWindow();
};

} // namespace velmaro
