#pragma once

#include <string>
#include <string_view>

namespace velmaro {

// The one-shot scripts that steer a page. Routes and function names lose their apostrophes and are
// not escaped otherwise; arguments have backslashes doubled and apostrophes escaped.
namespace PageScripts {

// `text` as it can stand between two apostrophes in a script.
std::string escapedArgument(std::string_view text);

// Shows `route` through the page's own `showPage`, else by loading its address.
std::string showRoute(std::string_view route);

// Shows `route`, then calls the page function if there is one; what it throws is swallowed.
std::string showRouteAndCall(std::string_view route, std::string_view function);
std::string showRouteAndCall(
    std::string_view route, std::string_view function, std::string_view argument);

// Reloads the page so that it comes back on the page that it shows now.
std::string reloadKeepingRoute();

// Selects nothing in the page any more.
std::string clearSelection();

} // namespace PageScripts

} // namespace velmaro
