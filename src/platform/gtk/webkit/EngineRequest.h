#pragma once

#include "platform/foundation/URL.h"
#include "platform/gtk/foundation/ObjectPointer.h"

#include <optional>
#include <string>
#include <webkit/webkit.h>

namespace gtk {

// A request for the page at `address`; one that revalidates takes a copy from the cache only after
// the server has confirmed it.
ObjectPointer<WebKitURIRequest> makeRequest(const std::string& address, bool revalidates);

// Shows a document that is already here.
void loadDocument(
    WebKitWebView* view, const std::string& html, const std::optional<platform::URL>& baseURL);

} // namespace gtk
