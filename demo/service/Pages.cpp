#include "service/Pages.h"

#include "service/Session.h"

#include <algorithm>

namespace demo {

namespace {

/// The application's script in the order in which its parts build on each other.
constexpr std::string_view scriptParts[] = {
    "scripts/markup.js",
    "scripts/charts.js",
    "scripts/online.js",
    "scripts/forms.js",
    "scripts/views.js",
    "scripts/records.js",
    "scripts/stations.js",
    "scripts/reports.js",
    "scripts/import.js",
    "scripts/start.js",
};

std::string applicationScript()
{
    std::string script;
    for (const auto part : scriptParts)
        script.append(embeddedPage(part).value_or("")).append("\n");
    return script;
}

struct Suffix {
    std::string_view suffix;
    std::string_view contentType;
};

constexpr Suffix suffixes[] = {
    {".html", "text/html; charset=utf-8"},
    {".css", "text/css; charset=utf-8"},
    {".js", "text/javascript; charset=utf-8"},
    {".svg", "image/svg+xml"},
    {".csv", "text/csv; charset=utf-8"},
};

std::string_view contentType(std::string_view path)
{
    for (const auto& [suffix, type] : suffixes) {
        if (path.ends_with(suffix))
            return type;
    }
    return "text/plain; charset=utf-8";
}

void replace(std::string& text, std::string_view placeholder, std::string_view value)
{
    if (const auto at = text.find(placeholder); at != std::string::npos)
        text.replace(at, placeholder.size(), value);
}

/// JSON that can stand inside a script element whatever the names hold.
std::string scriptText(const nlohmann::json& value)
{
    std::string text = value.dump(-1, ' ', true, nlohmann::json::error_handler_t::replace);
    for (std::size_t at = 0; (at = text.find('<', at)) != std::string::npos;)
        text.replace(at, 1, "\\u003c");
    return text;
}

} // namespace

std::optional<std::string_view> embeddedPage(std::string_view path)
{
    const auto pages = embeddedPages();
    const auto found = std::find_if(
        pages.begin(), pages.end(), [&](const EmbeddedPage& page) { return page.path == path; });
    if (found == pages.end())
        return std::nullopt;
    return found->text;
}

std::string applicationPage(std::string_view path, const Request& request)
{
    std::string text(embeddedPage(path).value_or(""));
    replace(text, "<!--style-->",
        "<style>" + std::string(embeddedPage("assets/online.css").value_or("")) + "</style>");
    replace(text, "/*currentUser*/null", scriptText(signedInUser(request)));
    return text;
}

Answer assetAnswer(std::string_view path, const Request& request)
{
    if (path == "assets/online.js")
        return cachedAnswer(request, contentType(path), applicationScript());

    const auto text = embeddedPage(path);
    if (!text)
        return failurePage(404, "Not found", "There is nothing at this address.");
    return cachedAnswer(request, contentType(path), std::string(*text));
}

Answer failurePage(unsigned status, std::string_view title, std::string_view explanation)
{
    std::string text(embeddedPage("failure.html").value_or(""));
    replace(text, "<!--style-->",
        "<style>" + std::string(embeddedPage("assets/online.css").value_or("")) + "</style>");
    replace(text, "{title}", title);
    replace(text, "{title}", title);
    replace(text, "{explanation}", explanation);
    return htmlAnswer(std::move(text), status);
}

} // namespace demo
