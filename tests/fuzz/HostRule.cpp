// Which hosts may be shown in a tab, beside a second implementation that compares label by label
// and takes addresses apart on its own.

#include "fuzz/Target.h"
#include "web/NavigationPolicy.h"

#include <algorithm>
#include <string>
#include <vector>

using platform::URL;
using velmaro::AddressUse;
using velmaro::Service;

namespace {

using Labels = std::vector<std::string>;

constexpr auto serviceOrigin = "https://Velmaro.example:8443";
constexpr auto checkoutHosts = "Pay.Velmaro-Pay.example sandbox.pay.velmaro-pay.example";

const Labels allowedHosts[] = {
    {"velmaro", "example"},
    {"pay", "velmaro-pay", "example"},
    {"sandbox", "pay", "velmaro-pay", "example"},
};

char lowered(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::string lowered(std::string text)
{
    for (auto& letter : text)
        letter = lowered(letter);
    return text;
}

Labels labelsOf(const std::string& host)
{
    Labels labels(1);
    for (const char letter : host) {
        if (letter == '.')
            labels.emplace_back();
        else
            labels.back() += lowered(letter);
    }
    return labels;
}

bool isAllowed(const std::string& host)
{
    const auto labels = labelsOf(host);
    return std::ranges::any_of(allowedHosts, [&](const Labels& allowed) {
        return labels.size() >= allowed.size()
            && std::equal(allowed.rbegin(), allowed.rend(), labels.rbegin());
    });
}

struct Address {
    std::string scheme;
    std::string host; // empty: none
};

int digit(char letter)
{
    return static_cast<int>(std::string_view("0123456789abcdef").find(lowered(letter)));
}

std::string unescaped(const std::string& text)
{
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '%') {
            result += text[at];
            continue;
        }
        result += static_cast<char>(digit(text[at + 1]) << 4 | digit(text[at + 2]));
        at += 2;
    }
    return result;
}

// Of an address in which every part has the form it must have.
Address addressOf(const std::string& text)
{
    Address address;
    std::size_t at = text.find_first_of(":/?#");
    if (at == text.npos || text[at] != ':')
        at = 0;
    else
        address.scheme = lowered(text.substr(0, at++));
    if (text.compare(at, 2, "//") != 0)
        return address;

    for (at += 2; at < text.size() && text[at] != '/' && text[at] != '?' && text[at] != '#'; ++at) {
        if (text[at] == '@')
            address.host.clear();
        else
            address.host += text[at];
    }
    if (address.host.starts_with('[')) {
        address.host = address.host.substr(1, address.host.find(']') - 1);
    } else {
        address.host.resize(std::min(address.host.find(':'), address.host.size()));
        address.host = unescaped(address.host);
    }
    return address;
}

bool isPlainHost(const std::string& text)
{
    constexpr std::string_view marks = "-._~";
    return !text.empty() && std::ranges::all_of(text, [&](char letter) {
        return (lowered(letter) >= 'a' && lowered(letter) <= 'z')
            || (letter >= '0' && letter <= '9') || marks.find(letter) != marks.npos;
    });
}

void tryAddress(const std::string& text, const Service& service)
{
    // Escaping touches no part that the rules look at but the host, which is unescaped again.
    const auto url = URL::encodingInvalidCharacters(text);
    if (!url)
        return;
    const auto address = addressOf(url->absoluteString());
    fuzz::require(url->host().value_or("") == address.host, "the host is what stands in its place");
    if (address.scheme != "https" && address.scheme != "http")
        return;
    const auto use = isAllowed(address.host) ? AddressUse::inTab : AddressUse::withSystem;
    fuzz::require(useOfNavigation(*url, service) == use, "navigations go by the host");
    fuzz::require(useOfNewWindow(*url, service) == use, "new windows go by the host");
}

} // namespace

void fuzz::tryInput(std::string_view input)
{
    static const Service service = [] {
        Service result;
        require(result.setServiceOrigin(serviceOrigin), "the origin is one");
        require(result.setPaymentCheckoutHosts(checkoutHosts), "the hosts are two");
        return result;
    }();

    const std::string text(input);
    require(isAllowedHost(text, service) == isAllowed(text), "hosts are compared by their labels");
    require(!isAllowedHost(std::nullopt, service), "no host is not allowed");

    tryAddress(text, service);
    tryAddress("https://" + text, service);
    if (isPlainHost(text)) {
        const auto url = URL::fromString("http://" + text + "/");
        require(url && url->host() == text, "a host without odd characters has an address");
    }
}
