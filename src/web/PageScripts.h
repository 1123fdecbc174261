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

// Hands a file's name and text to the page that imports files. Any other page is left for that one,
// and is to tell the user to drop the file again. What is not UTF-8 is handed over as empty.
// The text may be most of the memory there is, and is gone when the script is made.
std::string importText(std::string_view fileName, std::string text);

} // namespace PageScripts

} // namespace velmaro
