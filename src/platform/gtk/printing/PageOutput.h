#pragma once

#include "platform/gtk/printing/PageDocument.h"
#include "platform/gtk/printing/PrintOperation.h"

#include <vector>

namespace gtk {

// What is made of one web view's page, and keeps it alive meanwhile: documents and prints. What is
// not done when this goes away never will be.
class PageOutput {
public:
    PageOutput(WebKitWebView* view, std::shared_ptr<PrintChoice> choice)
        : view_(view)
        , choice_(std::move(choice))
    {
    }

    // See `WKWebView::createPDF`; the page is laid out at least `width` CSS pixels wide.
    void createPDF(double width, std::function<void(const PageDocument::Result&)> completion);

    std::shared_ptr<PrintOperation> print(const platform::NSPrintInfo& printInfo);

    // There will be no more of the page, for this reason. False when nothing was to be made of it.
    bool fail(const std::string& reason);

private:
    WebKitWebView* const view_;
    const std::shared_ptr<PrintChoice> choice_;
    std::vector<std::shared_ptr<PageDocument>> documents_;
    std::vector<std::shared_ptr<PrintOperation>> prints_;
};

} // namespace gtk
