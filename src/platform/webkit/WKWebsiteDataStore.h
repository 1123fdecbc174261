#pragma once

#include <functional>

namespace platform {

// Where a web view keeps cookies, storage and caches.
enum class WKWebsiteDataStore {
    nonPersistent, // in memory, for this web view alone
    defaultDataStore, // on disk, shared by all web views and kept across launches
};

// Removes everything of every kind that pages have ever left in the store: cookies, storage,
// databases, service workers, caches, and what the engine has learnt about their hosts. Pages that
// are shown go on without it. `completion` is called on the main thread when it has been done,
// which may be much later; never when the program ends first.
void removeAllData(WKWebsiteDataStore store, std::function<void()> completion);

} // namespace platform
