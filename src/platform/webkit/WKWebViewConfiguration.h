#pragma once

#include "platform/webkit/WKUserContentController.h"

namespace platform {

// Where a web view keeps cookies, storage and caches.
enum class WKWebsiteDataStore {
    nonPersistent, // in memory, for this web view alone
    defaultDataStore, // on disk, shared by all web views and kept across launches
};

struct WKPreferences {
    bool javaScriptCanOpenWindowsAutomatically = false;
};

// How a web view is made; later changes have no effect on it.
struct WKWebViewConfiguration {
    WKWebsiteDataStore websiteDataStore = WKWebsiteDataStore::defaultDataStore;
    WKPreferences preferences;
    WKUserContentController userContentController;
};

} // namespace platform
