#include "web/PageScripts.h"

#include "platform/foundation/JSONSerialization.h"

#include <algorithm>

namespace velmaro::PageScripts {

namespace {

std::string withoutApostrophes(std::string_view text)
{
    std::string result(text);
    std::erase(result, '\'');
    return result;
}

// Appends `text` as a string of the script.
void appendLiteral(std::string& script, std::string_view text)
{
    if (!platform::JSONSerialization::appendString(script, text))
        script += R"("")";
}

std::string showRouteAndCallWith(
    std::string_view route, std::string_view function, const std::string& argumentLiteral)
{
    const auto name = withoutApostrophes(function);
    return "(function(){\n  " + showRoute(route) + "\n  if (typeof " + name
        + " === 'function') { try { " + name + "(" + argumentLiteral + "); } catch(_){} }\n})();";
}

} // namespace

std::string escapedArgument(std::string_view text)
{
    std::string result;
    for (const char character : text) {
        if (character == '\\' || character == '\'')
            result += '\\';
        result += character;
    }
    return result;
}

std::string showRoute(std::string_view route)
{
    const auto name = withoutApostrophes(route);
    return "if (typeof showPage === 'function') { showPage('" + name
        + "'); } else { location.href = '/online#" + name + "'; }";
}

std::string showRouteAndCall(std::string_view route, std::string_view function)
{
    return showRouteAndCallWith(route, function, "");
}

std::string showRouteAndCall(
    std::string_view route, std::string_view function, std::string_view argument)
{
    return showRouteAndCallWith(route, function, "'" + escapedArgument(argument) + "'");
}

std::string reloadKeepingRoute()
{
    return R"js((function () {
  try {
    if (typeof _currentPage === 'string' && _currentPage) {
      if (window.location.hash !== '#' + _currentPage) {
        window.location.hash = _currentPage;
      }
    }
  } catch (_) {}
  window.location.reload();
})();)js";
}

std::string clearSelection()
{
    return "window.getSelection && window.getSelection().removeAllRanges();";
}

std::string importText(std::string_view fileName, std::string text)
{
    constexpr std::string_view beforeName = R"js((function(){
  if (typeof impLoadTextFromNative === 'function') {
    impLoadTextFromNative()js";
    constexpr std::string_view afterText = R"js();
  } else if (typeof showPage === 'function') {
    showPage('import');
    alert('Open the Import page, pick what you\'re importing, then drop the file again.');
  }
})();)js";

    std::string script(beforeName);
    appendLiteral(script, fileName);
    script += ", ";
    appendLiteral(script, text);
    script += afterText;
    return script;
}

} // namespace velmaro::PageScripts
