#pragma once

#include "platform/foundation/URLCache.h"
#include "platform/gtk/foundation/ObjectPointer.h"

#include <filesystem>
#include <libsoup/soup.h>

namespace gtk {

// Keeps answers of network services for as long as the services allow, in a folder of their own.
// The folder is not touched before the first use.
class GtkURLCache final : public platform::URLCache {
public:
    explicit GtkURLCache(std::filesystem::path folder);

    // Leaves what is worth keeping for the next launch.
    ~GtkURLCache() override;

    void removeAllCachedResponses() override;

    // Makes `session` look here before it asks a server, and keep the answers here.
    void attach(SoupSession* session);

private:
    SoupCache* cache();

    const std::filesystem::path folder_;
    ObjectPointer<SoupCache> cache_; // null until the first use
};

} // namespace gtk
