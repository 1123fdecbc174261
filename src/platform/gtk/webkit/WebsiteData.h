#pragma once

#include <functional>
#include <webkit/webkit.h>

namespace gtk {

// Removes all that pages have left in the session, in memory and on the disk. `completion` is
// called when that has been done.
void removeWebsiteData(WebKitNetworkSession* session, std::function<void()> completion);

} // namespace gtk
