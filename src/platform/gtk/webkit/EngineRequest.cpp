#include "platform/gtk/webkit/EngineRequest.h"

#include <string_view>

namespace gtk {

ObjectPointer<WebKitURIRequest> makeRequest(const std::string& address, bool revalidates)
{
    ObjectPointer<WebKitURIRequest> request(webkit_uri_request_new(address.c_str()));
    if (revalidates) {
        auto* headers = webkit_uri_request_get_http_headers(request.get());
        soup_message_headers_replace(headers, "Cache-Control", "max-age=0");
    }
    return request;
}

void loadDocument(
    WebKitWebView* view, const std::string& html, const std::optional<platform::URL>& baseURL)
{
    const auto* base = baseURL ? baseURL->absoluteString().c_str() : nullptr;
    // As bytes, since there may be a NUL in it; no bytes at all the engine does not take.
    const std::string_view text = html.empty() ? "\n" : std::string_view(html);
    g_autoptr(GBytes) bytes = g_bytes_new(text.data(), text.size());
    webkit_web_view_load_bytes(view, bytes, "text/html", "UTF-8", base);
}

} // namespace gtk
