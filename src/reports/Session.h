#pragma once

#include "platform/webkit/WKNavigationDelegate.h"
#include "platform/webkit/WKWebView.h"

#include <memory>

namespace velmaro {

// What one job needs to stay alive.
struct Session {
    std::shared_ptr<platform::WKWebView> webView;
    std::shared_ptr<platform::WKNavigationDelegate> delegate; // the web view's
};

} // namespace velmaro
