#pragma once

#include "platform/foundation/URL.h"
#include "service/Service.h"

#include <optional>
#include <string>

namespace velmaro {

// What becomes of an address that a page, or its user, wants to go to.
enum class AddressUse { none, inTab, withSystem };

// Whether pages of `host` may be shown in a tab: those of the service and of its payment provider,
// and of all their subdomains.
bool isAllowedHost(const std::optional<std::string>& host, const Service& service);

// For a navigation of any frame.
AddressUse useOfNavigation(const platform::URL& url, const Service& service);

// For a window that a page wants to open.
AddressUse useOfNewWindow(const platform::URL& url, const Service& service);

} // namespace velmaro
