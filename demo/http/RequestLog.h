#pragma once

#include "http/Request.h"

#include <cstddef>
#include <nlohmann/json.hpp>

namespace demo {

/// What clients asked for since the start or the last clear, oldest first, for tests to read.
/// Only the latest ten thousand are kept.
class RequestLog {
public:
    /// Records a request as not answered yet (status 0) and returns its number.
    std::size_t add(const Request&);

    /// Notes the status that the request was answered with. Unknown numbers are ignored.
    void setStatus(std::size_t number, unsigned status);

    void clear();

    /// An array of objects: number, method, host, path, query, headers, cookies (names only),
    /// status.
    nlohmann::json entries() const;

private:
    nlohmann::json entries_ = nlohmann::json::array();
    std::size_t nextNumber_ = 1;
};

} // namespace demo
