// Addresses with the application's own scheme, whoever hands them over.

#include "app/DeepLink.h"
#include "fuzz/Target.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

using fuzz::require;
using platform::URL;
using velmaro::DeepLink;

namespace {

struct Destination {
    std::string thing;
    DeepLink link;
};

const Destination newItems[] = {
    {"drive", {"drives", "addDrive", {}}},
    {"vehicle", {"vehicles", "addVehicle", {}}},
    {"driver", {"drivers", "addDriver", {}}},
    {"fuel", {"fuel", "addFuel", {}}},
    {"charging", {"charging", "addCharging", {}}},
    {"report", {"reports", "loadReports", {}}},
};

std::string lowered(std::string text)
{
    for (char& letter : text)
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
    return text;
}

std::string raised(std::string text)
{
    for (char& letter : text)
        letter = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 32) : letter;
    return text;
}

// The number in its shortest form, found by comparing digits instead of counting; absent when it
// is none, or needs more than 64 bits.
std::optional<std::string> number(std::string text)
{
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+'))
        text.erase(0, 1);
    if (text.empty() || text.find_first_not_of("0123456789") != text.npos)
        return std::nullopt;
    text.erase(0, std::min(text.find_first_not_of('0'), text.size() - 1));

    const std::string largest = isNegative ? "9223372036854775808" : "9223372036854775807";
    if (text.size() > largest.size() || (text.size() == largest.size() && text > largest))
        return std::nullopt;
    return isNegative && text != "0" ? "-" + text : text;
}

std::optional<DeepLink> expected(const URL& url)
{
    const auto host = lowered(url.host().value_or(""));
    if (lowered(url.scheme().value_or("")) != "velmaro" || host.empty())
        return std::nullopt;

    std::vector<std::string> names;
    for (const auto& component : url.pathComponents()) {
        if (component != "/")
            names.push_back(component);
    }
    if (host != "page" && host != "drive" && host != "new")
        return DeepLink{host, "", {}};
    if (names.empty())
        return std::nullopt;
    if (host == "page")
        return DeepLink{names[0], "", {}};
    if (host == "drive") {
        const auto drive = number(names[0]);
        return drive ? std::optional(DeepLink{"drives", "viewDriveDetail", *drive}) : std::nullopt;
    }
    for (const auto& [thing, link] : newItems) {
        if (thing == lowered(names[0]))
            return link;
    }
    return std::nullopt;
}

void tryAddress(const std::string& text)
{
    const auto url = URL::fromString(text);
    if (!url)
        return;
    const auto link = velmaro::parseDeepLink(*url);
    require(link == expected(*url), "a link leads where its host and path say");
    if (!link)
        return;

    require(!link->route.empty(), "a link leads somewhere");
    const auto colon = text.find(':');
    const auto shouted = URL::fromString(raised(text.substr(0, colon)) + text.substr(colon));
    require(shouted && velmaro::parseDeepLink(*shouted) == link, "the scheme is read in any case");
}

} // namespace

void fuzz::tryInput(std::string_view input)
{
    const std::string text(input);
    tryAddress(text);
    tryAddress("velmaro://" + text);
}
