#pragma once

#include "platform/webkit/WKUserContentController.h"
#include "platform/webkit/WKWebsiteDataStore.h"

namespace platform {

struct WKPreferences {
    bool javaScriptCanOpenWindowsAutomatically = false;
};

// How a web view is made; later changes have no effect on it. It is a plain value.
struct WKWebViewConfiguration {
    WKWebsiteDataStore websiteDataStore = WKWebsiteDataStore::defaultDataStore;
    WKPreferences preferences;
    WKUserContentController userContentController;
};

} // namespace platform
