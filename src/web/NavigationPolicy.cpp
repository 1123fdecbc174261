#include "web/NavigationPolicy.h"

#include "platform/foundation/Unicode.h"

#include <algorithm>
#include <string_view>

namespace velmaro {

using platform::lowercasingASCII; // host names and schemes have no other letters

namespace {

struct SchemeRule {
    std::string_view scheme;
    AddressUse navigation;
    AddressUse newWindow;
};

// Web addresses go by their host. Schemes that are in neither place lead nowhere.
constexpr SchemeRule schemeRules[] = {
    {"mailto", AddressUse::withSystem, AddressUse::withSystem},
    {"tel", AddressUse::withSystem, AddressUse::withSystem},
    {"sms", AddressUse::withSystem, AddressUse::none},
    {"facetime", AddressUse::withSystem, AddressUse::none},
    {"facetime-audio", AddressUse::withSystem, AddressUse::none},
    {"about", AddressUse::inTab, AddressUse::none},
};

bool isHostOrSubdomain(std::string_view host, std::string_view of)
{
    if (!host.ends_with(of))
        return false;
    host.remove_suffix(of.size());
    return host.empty() || host.ends_with('.');
}

AddressUse use(const platform::URL& url, const Service& service, AddressUse SchemeRule::*column)
{
    const auto scheme = lowercasingASCII(url.scheme().value_or(""));
    if (scheme == "https" || scheme == "http")
        return isAllowedHost(url.host(), service) ? AddressUse::inTab : AddressUse::withSystem;
    const auto* rule = std::ranges::find(schemeRules, scheme, &SchemeRule::scheme);
    return rule == std::end(schemeRules) ? AddressUse::none : rule->*column;
}

} // namespace

bool isAllowedHost(const std::optional<std::string>& host, const Service& service)
{
    if (!host)
        return false;
    const auto lowerHost = lowercasingASCII(*host);
    if (isHostOrSubdomain(lowerHost, lowercasingASCII(service.serviceHost())))
        return true;
    return std::ranges::any_of(service.paymentCheckoutHosts(), [&](const auto& allowed) {
        return isHostOrSubdomain(lowerHost, lowercasingASCII(allowed));
    });
}

AddressUse useOfNavigation(const platform::URL& url, const Service& service)
{
    return use(url, service, &SchemeRule::navigation);
}

AddressUse useOfNewWindow(const platform::URL& url, const Service& service)
{
    return use(url, service, &SchemeRule::newWindow);
}

} // namespace velmaro
