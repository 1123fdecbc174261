#include "http/RequestLog.h"

#include <algorithm>
#include <string>

namespace demo {

namespace {

constexpr std::size_t mostEntries = 10'000;

constexpr const char* recordedHeaders[] = {
    "user-agent",
    "if-none-match",
    "if-modified-since",
    "cache-control",
    "pragma",
    "content-type",
    "referer",
    "range",
};

/// Values may hold a secret; the names are enough to see who was let in.
nlohmann::json cookieNames(const std::string& cookies)
{
    auto names = nlohmann::json::array();
    std::size_t start = 0;
    while (start < cookies.size()) {
        const auto end = std::min(cookies.find(';', start), cookies.size());
        const auto first = std::min(cookies.find_first_not_of(' ', start), end);
        const auto equals = std::min(cookies.find('=', first), end);
        names.push_back(cookies.substr(first, equals - first));
        start = end + 1;
    }
    return names;
}

} // namespace

std::size_t RequestLog::add(const Request& request)
{
    auto headers = nlohmann::json::object();
    for (const char* name : recordedHeaders) {
        if (request.headers.count(name))
            headers[name] = request.header(name);
    }

    if (entries_.size() == mostEntries)
        entries_.erase(0);
    entries_.push_back({
        {"number", nextNumber_},
        {"method", request.method},
        {"host", request.host},
        {"path", request.path},
        {"query", request.query},
        {"headers", std::move(headers)},
        {"cookies", cookieNames(request.header("cookie"))},
        {"status", 0},
    });
    return nextNumber_++;
}

void RequestLog::setStatus(std::size_t number, unsigned status)
{
    if (entries_.empty())
        return;
    const auto first = entries_.front()["number"].get<std::size_t>();
    if (number >= first && number - first < entries_.size())
        entries_[number - first]["status"] = status;
}

void RequestLog::clear()
{
    entries_.clear();
}

nlohmann::json RequestLog::entries() const
{
    return entries_;
}

} // namespace demo
