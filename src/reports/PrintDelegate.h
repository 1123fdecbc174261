#pragma once

#include "platform/appkit/NSPrintOperation.h"
#include "platform/appkit/NSWindow.h"
#include "platform/foundation/UUID.h"
#include "platform/webkit/WKNavigationDelegate.h"

#include <memory>
#include <string>

namespace velmaro {

// Sees one report through from its loading to the end of its printing.
class PrintDelegate final : public platform::WKNavigationDelegate,
                            public std::enable_shared_from_this<PrintDelegate> {
public:
    PrintDelegate(const platform::UUID& id, std::string title,
        std::shared_ptr<platform::NSWindow> hostWindow = nullptr);

    const platform::UUID id; // of the job
    const std::string title; // of the report, and of the print

    // Holds the web view while it prints; null before and after.
    std::shared_ptr<platform::NSWindow> hostWindow;

    void didFinishNavigation(platform::WKWebView& webView) override;
    void didFailNavigation(platform::WKWebView&, const platform::NSError& error) override;
    void didFailProvisionalNavigation(
        platform::WKWebView&, const platform::NSError& error) override;

    // The print has ended, one way or the other, and with it the job.
    void printDidRun(platform::NSPrintOperation& operation, bool success);

private:
    void print(platform::WKWebView& webView);
    std::shared_ptr<platform::NSWindow> sheetWindow() const;
    void closeHostWindow();
    void end() const;
};

} // namespace velmaro
