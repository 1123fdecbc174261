#pragma once

#include "platform/foundation/URL.h"
#include "platform/webkit/WKNavigationDelegate.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace platform {

struct WKOpenPanelParameters {
    bool allowsMultipleSelection = false;
};

// What a web view asks for on behalf of its page, beside loads. The web view holds it weakly and
// calls it on the main thread.
class WKUIDelegate {
public:
    virtual ~WKUIDelegate() = default;

    // The page wants a window of its own. It gets no window when the answer is null.
    virtual std::shared_ptr<WKWebView> createWebView(WKWebView&, const WKNavigationAction&)
    {
        return nullptr;
    }

    // A file input was pressed. `choose` is to be called once, at any time: with the files that the
    // user chose, or absent when they chose none.
    virtual void runOpenPanel(WKWebView&, const WKOpenPanelParameters&,
        std::function<void(const std::optional<std::vector<URL>>&)> choose)
    {
        choose(std::nullopt);
    }
};

} // namespace platform
