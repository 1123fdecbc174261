#include "platform/gtk/webkit/PageAddress.h"

namespace gtk {

std::optional<platform::URL> urlOfPageAddress(std::string_view address)
{
    auto url = platform::URL::encodingInvalidCharacters(address);
    if (!url || (url->scheme() != "https" && url->scheme() != "http"))
        return url;

    // In a web address that the engine has understood no escapes are left in the host.
    const auto& text = url->absoluteString();
    const auto start = text.find("//");
    if (start == text.npos)
        return url;
    auto authority = std::string_view(text).substr(start + 2);
    authority = authority.substr(0, authority.find_first_of("/?#"));
    const auto host = authority.substr(authority.rfind('@') + 1); // from the start without one
    return host.find('%') == host.npos ? url : std::nullopt;
}

} // namespace gtk
