#pragma once

#include <map>
#include <string>
#include <string_view>

namespace demo {

/// Text as it stands in one place of an address: all but letters, digits, '-' and '_' become %XX.
std::string percentEncoded(std::string_view);

/// The reverse. A '%' that two hexadecimal digits do not follow stays as it is.
std::string percentDecoded(std::string_view);

/// The items of a query or of a submitted form, decoded; the last of two equal names wins.
std::map<std::string, std::string> queryItems(std::string_view query);

} // namespace demo
