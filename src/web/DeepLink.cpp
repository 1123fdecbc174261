#include "web/DeepLink.h"

#include "platform/foundation/Unicode.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string_view>
#include <vector>

namespace velmaro {

namespace {

struct NewItem {
    std::string_view name;
    std::string_view route;
    std::string_view function;
};

constexpr std::array newItems{
    NewItem{"drive", "drives", "addDrive"},
    NewItem{"vehicle", "vehicles", "addVehicle"},
    NewItem{"driver", "drivers", "addDriver"},
    NewItem{"fuel", "fuel", "addFuel"},
    NewItem{"charging", "charging", "addCharging"},
    NewItem{"report", "reports", "loadReports"},
};

// An optional sign and digits, nothing else, within 64 bits.
std::optional<std::int64_t> parseInteger(std::string_view text)
{
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-'))
            return std::nullopt;
    }
    std::int64_t number = 0;
    const auto* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || rest != end)
        return std::nullopt;
    return number;
}

std::optional<DeepLink> newItemLink(const std::string& name)
{
    const auto item = std::ranges::find(newItems, platform::lowercasingASCII(name), &NewItem::name);
    if (item == newItems.end())
        return std::nullopt;
    return DeepLink{std::string(item->route), std::string(item->function), std::nullopt};
}

} // namespace

std::optional<DeepLink> parseDeepLink(const platform::URL& url)
{
    if (platform::lowercasingASCII(url.scheme().value_or("")) != "velmaro")
        return std::nullopt;

    auto parts = url.pathComponents();
    std::erase(parts, "/");

    const auto host = platform::lowercasingASCII(url.host().value_or(""));
    if (host.empty())
        return std::nullopt;
    if (host != "page" && host != "drive" && host != "new")
        return DeepLink{host, {}, std::nullopt};
    if (parts.empty())
        return std::nullopt;

    if (host == "page")
        return DeepLink{parts.front(), {}, std::nullopt};
    if (host == "new")
        return newItemLink(parts.front());

    const auto drive = parseInteger(parts.front());
    if (!drive)
        return std::nullopt;
    return DeepLink{"drives", "viewDriveDetail", std::to_string(*drive)};
}

} // namespace velmaro
