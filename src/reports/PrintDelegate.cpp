#include "reports/PrintDelegate.h"

#include "platform/appkit/NSApplication.h"
#include "platform/Platform.h"
#include "platform/webkit/WKWebView.h"

#include <algorithm>
#include <utility>

namespace velmaro {

using platform::NSApplication;
using platform::NSPrintInfo;
using platform::NSPrintOperation;
using platform::NSWindow;
using platform::WKWebView;

namespace {

constexpr platform::NSPoint hostWindowOrigin{-20000, -20000};
constexpr double margin = 36; // points, half an inch

NSPrintInfo reportPrintInfo()
{
    auto info = NSPrintInfo::shared();
    info.jobDisposition = NSPrintInfo::JobDisposition::spool;
    info.topMargin = info.bottomMargin = info.leftMargin = info.rightMargin = margin;
    info.horizontalPagination = NSPrintInfo::PaginationMode::fit;
    info.verticalPagination = NSPrintInfo::PaginationMode::automatic;
    return info;
}

} // namespace

PrintDelegate::PrintDelegate(
    const platform::UUID& id, std::string title, std::shared_ptr<NSWindow> hostWindow)
    : ReportJob(id, std::move(title), "Print failed to load: ")
    , hostWindow(std::move(hostWindow))
{
}

void PrintDelegate::carryOut(WKWebView& webView)
{
    if (!webView.window())
        hostWindow = platform::Platform::current().makeOffscreenWindow(
            {hostWindowOrigin, webView.bounds().size}, webView.shared_from_this());

    const auto operation = webView.printOperation(reportPrintInfo());
    operation->jobTitle = title;
    const auto completion = [this, self = shared_from_this()](NSPrintOperation& ended,
                                bool success) { printDidRun(ended, success); };
    if (const auto window = sheetWindow())
        operation->runModalFor(window, completion);
    else
        operation->runOperation(completion);
}

std::shared_ptr<NSWindow> PrintDelegate::sheetWindow() const
{
    auto& application = NSApplication::shared();
    if (auto window = application.keyWindow())
        return window;
    if (auto window = application.mainWindow())
        return window;
    const auto windows = application.windows();
    const auto found = std::ranges::find_if(windows,
        [this](const auto& window) { return window->isVisible() && window != hostWindow; });
    return found == windows.end() ? nullptr : *found;
}

void PrintDelegate::printDidRun(NSPrintOperation&, bool)
{
    closeHostWindow();
    end();
}

void PrintDelegate::closeHostWindow()
{
    if (const auto window = std::exchange(hostWindow, nullptr))
        window->close();
}

} // namespace velmaro
