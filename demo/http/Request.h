#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace demo {

/// One request as the service sees it, freed from the transport.
struct Request {
    std::string method;
    std::string host; ///< Without the port, lower case.
    int port = 0; ///< The port that this service listens on.
    std::string path; ///< Decoded.
    std::string query; ///< As sent, without the '?'.
    std::map<std::string, std::string> headers = {}; ///< Names in lower case.
    std::string body = {};

    /// The header's value, or an empty string.
    std::string header(std::string_view lowerCaseName) const;

    std::optional<std::string> cookie(std::string_view name) const;

    /// The decoded query item, or the fallback when the query has none of this name.
    std::string queryItem(const std::string& name, std::string_view fallback = {}) const;

    /// The query item as a whole number; the fallback when it is none.
    int queryNumber(const std::string& name, int fallback) const;
};

} // namespace demo
