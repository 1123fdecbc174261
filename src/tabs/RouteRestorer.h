#pragma once

#include <string>
#include <vector>

namespace velmaro {

// Keeps the routes of the open tabs in the settings store across launches.
namespace RouteRestorer {

// The settings for the routes, which are stored left to right, and for the index of the active tab.
inline constexpr auto key = "vl.open.routes";
inline constexpr auto activeIndexKey = "vl.open.routes.active";

// The user's choice whether the active tab comes back, too.
inline constexpr auto restoreActiveTabKey = "vl.restore.active.tab";

// The saved routes, trimmed, without the blank ones.
std::vector<std::string> loadRoutes();

// Saves one route for each tab; a blank one becomes the dashboard. Routes that are all blank leave
// nothing stored.
void saveRoutes(const std::vector<std::string>& routes);

// True when the user has never chosen.
bool restoreActiveTabEnabled();

} // namespace RouteRestorer

} // namespace velmaro
