#pragma once

#include "platform/gtk/foundation/SignalHandlers.h"
#include "platform/webkit/WKFindConfiguration.h"

#include <deque>
#include <functional>
#include <string>
#include <webkit/webkit.h>

namespace gtk {

// Searches in the page of one web view. The engine answers every search once and in order, but does
// not say which.
class PageSearch {
public:
    using Completion = std::function<void(const platform::WKFindResult&)>;

    explicit PageSearch(WebKitWebView* view);

    void find(const std::string& text, const platform::WKFindConfiguration& configuration,
        Completion completion);

private:
    void answer(bool matchFound);

    WebKitFindController* const controller_; // the view's
    std::deque<Completion> waiting_;
    SignalHandlers signals_;
};

} // namespace gtk
