#pragma once

#include "platform/foundation/Data.h"
#include "platform/foundation/Lifetime.h"
#include "platform/foundation/Value.h"
#include "platform/gtk/printing/PrintToFile.h"

#include <memory>
#include <variant>

namespace gtk {

// Makes one PDF document of a web view's page: a single sheet as large as the page, which looks as
// it does on the screen. The page is changed for that, and not changed back.
class PageDocument {
public:
    using Result = std::variant<platform::Data, platform::NSError>;

    // The page is laid out at least as wide as the view.
    explicit PageDocument(WebKitWebView* view);

    // Calls `completion` once, later, unless this goes before.
    void start(std::function<void(const Result&)> completion);

    // Ends it now, and tells why.
    void fail(const std::string& reason);

private:
    void print(const platform::Value& measures);
    void finish(const Result& result);

    const ObjectPointer<WebKitWebView> view_;
    std::function<void(const Result&)> completion_;
    std::unique_ptr<PrintToFile> print_;
    platform::Lifetime lifetime_;
};

} // namespace gtk
