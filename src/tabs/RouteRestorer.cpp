#include "tabs/RouteRestorer.h"

#include "platform/foundation/Unicode.h"
#include "platform/foundation/UserDefaults.h"

#include <algorithm>

namespace velmaro::RouteRestorer {

using platform::UserDefaults;

namespace {

std::vector<std::string> trimmed(std::vector<std::string> routes)
{
    for (auto& route : routes)
        route = platform::trimmingWhitespace(route);
    return routes;
}

} // namespace

std::vector<std::string> loadRoutes()
{
    auto routes =
        trimmed(UserDefaults::standard().stringArray(key).value_or(std::vector<std::string>()));
    std::erase(routes, "");
    return routes;
}

void saveRoutes(const std::vector<std::string>& routes)
{
    auto saved = trimmed(routes);
    if (std::ranges::all_of(saved, &std::string::empty)) {
        UserDefaults::standard().removeObject(key);
        return;
    }
    std::ranges::replace(saved, std::string(), std::string("dashboard"));
    UserDefaults::standard().setStringArray(key, saved);
}

bool restoreActiveTabEnabled()
{
    const auto& defaults = UserDefaults::standard();
    return !defaults.contains(restoreActiveTabKey) || defaults.boolean(restoreActiveTabKey);
}

} // namespace velmaro::RouteRestorer
