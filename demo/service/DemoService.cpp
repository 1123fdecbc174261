#include "service/DemoService.h"

#include "hostile/HostileAnswers.h"
#include "service/Exports.h"
#include "service/Geocoder.h"
#include "service/Pages.h"
#include "service/Updates.h"

namespace demo {

namespace {

constexpr std::size_t mostNotes = 1000;

} // namespace

struct DemoService::Route {
    std::string_view method; ///< Empty for any.
    std::string_view path; ///< With everything below it when it ends in a slash.
    Answer (DemoService::*answer)(const Request&);

    bool hasPath(std::string_view asked) const
    {
        const bool isFolder = path.size() > 1 && path.back() == '/';
        return isFolder ? asked.starts_with(path) : asked == path;
    }
};

const DemoService::Route DemoService::routes[] = {
    {"GET", "/", &DemoService::home},
    {"GET", "/online", &DemoService::online},
    {"GET", "/online/welcome.php", &DemoService::welcome},
    {"", "/online/api/", &DemoService::api},
    {"GET", "/online/exports/", &DemoService::exports},
    {"GET", "/online/assets/", &DemoService::asset},
    {"GET", "/favicon.ico", &DemoService::asset},
    {"GET", "/help", &DemoService::page},
    {"GET", "/legal/privacy", &DemoService::page},
    {"GET", "/checkout", &DemoService::page},
    {"GET", "/elsewhere", &DemoService::page},
    {"GET", "/api", &DemoService::search},
    {"GET", "/reverse", &DemoService::reverse},
    {"GET", "/demo/updates/", &DemoService::updates},
    {"GET", "/demo/requests", &DemoService::requests},
    {"POST", "/demo/reset", &DemoService::reset},
    {"GET", "/demo/state", &DemoService::state},
    {"", "/demo/echo", &DemoService::echo},
    {"POST", "/demo/notes", &DemoService::addNote},
    {"GET", "/demo/notes", &DemoService::notes},
};

DemoService::DemoService(RequestLog& log, bool isHostile)
    : log_(log)
    , isHostile_(isHostile)
    , data_(std::make_unique<DemoData>())
    , api_(std::make_unique<OnlineApi>(*data_))
{
}

Answer DemoService::answer(const Request& request)
{
    if (isHostile_) {
        if (auto hostile = hostileAnswer(request))
            return *std::move(hostile);
    }

    const std::string method = request.method == "HEAD" ? "GET" : request.method;
    bool isKnownPath = false;
    for (const Route& route : routes) {
        if (!route.hasPath(request.path))
            continue;
        if (route.method.empty() || route.method == method)
            return (this->*route.answer)(request);
        isKnownPath = true;
    }
    if (isKnownPath)
        return errorAnswer(405, "This address does not know the method.");
    return failurePage(404, "Page not found", "There is nothing at this address.");
}

Answer DemoService::home(const Request& request)
{
    return request.host == "elsewhere.localhost" ? page(request) : redirectAnswer("/online");
}

Answer DemoService::online(const Request& request)
{
    return cachedAnswer(
        request, "text/html; charset=utf-8", applicationPage("online.html", request))
        .with("Vary", "Cookie");
}

Answer DemoService::welcome(const Request& request)
{
    return cachedAnswer(
        request, "text/html; charset=utf-8", applicationPage("welcome.html", request))
        .with("Vary", "Cookie");
}

Answer DemoService::api(const Request& request)
{
    return api_->answer(request, request.path.substr(std::string_view("/online/api/").size()));
}

Answer DemoService::exports(const Request& request)
{
    const auto name = request.path.substr(std::string_view("/online/exports/").size());
    if (auto answer = exportAnswer(name, *data_))
        return *std::move(answer);
    return failurePage(404, "No such export", "There is no export of this name.");
}

Answer DemoService::asset(const Request& request)
{
    if (request.path == "/favicon.ico")
        return assetAnswer("assets/mark.svg", request);
    return assetAnswer(request.path.substr(std::string_view("/online/").size()), request);
}

Answer DemoService::page(const Request& request)
{
    const auto name = request.path == "/" ? "elsewhere" : request.path.substr(1);
    return cachedAnswer(
        request, "text/html; charset=utf-8", applicationPage(name + ".html", request))
        .with("Vary", "Cookie");
}

Answer DemoService::requests(const Request&)
{
    return jsonAnswer(log_.entries());
}

Answer DemoService::reset(const Request&)
{
    log_.clear();
    notes_.clear();
    data_ = std::make_unique<DemoData>();
    api_ = std::make_unique<OnlineApi>(*data_);
    return Answer{.status = 204};
}

Answer DemoService::state(const Request&)
{
    nlohmann::json counts;
    for (const auto& [name, collection] : data_->collections())
        counts[name] = collection.records().size();
    return jsonAnswer({{"records", counts}, {"receivedImports", api_->receivedImports()}});
}

Answer DemoService::echo(const Request& request)
{
    return jsonAnswer({
        {"method", request.method},
        {"host", request.host},
        {"path", request.path},
        {"query", request.query},
        {"headers", request.headers},
        {"body", request.body},
    });
}

Answer DemoService::addNote(const Request& request)
{
    if (notes_.size() < mostNotes)
        notes_.push_back(request.body);
    return Answer{.status = 204};
}

Answer DemoService::notes(const Request&)
{
    return jsonAnswer(notes_);
}

Answer DemoService::search(const Request& request)
{
    return searchAnswer(request);
}

Answer DemoService::reverse(const Request& request)
{
    return reverseAnswer(request);
}

Answer DemoService::updates(const Request& request)
{
    if (auto answer =
            updateAnswer(request.path.substr(std::string_view("/demo/updates/").size()), request))
        return *std::move(answer);
    return failurePage(404, "No such update", "There is no update of this kind.");
}

} // namespace demo
