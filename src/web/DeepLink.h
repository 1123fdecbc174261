#pragma once

#include "platform/foundation/URL.h"

#include <optional>
#include <string>

namespace velmaro {

// Where an address with the application's own scheme leads.
struct DeepLink {
    std::string route;
    std::string function; // page function to call there; may be empty
    std::optional<std::string> argument;

    bool operator==(const DeepLink&) const = default;
};

// Reads "velmaro://page/ROUTE", "velmaro://drive/NUMBER", "velmaro://new/THING" and
// "velmaro://ROUTE". Absent for everything else.
std::optional<DeepLink> parseDeepLink(const platform::URL& url);

} // namespace velmaro
