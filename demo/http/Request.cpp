#include "http/Request.h"

#include "http/UrlText.h"

#include <algorithm>
#include <charconv>

namespace demo {

std::string Request::header(std::string_view lowerCaseName) const
{
    const auto found = headers.find(std::string(lowerCaseName));
    return found == headers.end() ? std::string() : found->second;
}

std::optional<std::string> Request::cookie(std::string_view name) const
{
    const std::string cookies = header("cookie");
    std::string_view rest = cookies;
    while (!rest.empty()) {
        auto item = rest.substr(0, rest.find(';'));
        rest.remove_prefix(std::min(rest.size(), item.size() + 1));
        item.remove_prefix(std::min(item.size(), item.find_first_not_of(' ')));
        const auto equals = item.find('=');
        if (equals != std::string_view::npos && item.substr(0, equals) == name)
            return std::string(item.substr(equals + 1));
    }
    return std::nullopt;
}

std::string Request::queryItem(const std::string& name, std::string_view fallback) const
{
    const auto items = queryItems(query);
    const auto found = items.find(name);
    return found == items.end() ? std::string(fallback) : found->second;
}

int Request::queryNumber(const std::string& name, int fallback) const
{
    const std::string text = queryItem(name);
    int number = fallback;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? number : fallback;
}

} // namespace demo
