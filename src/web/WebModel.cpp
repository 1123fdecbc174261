#include "web/WebModel.h"

#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/webkit/WKWebView.h"
#include "web/DeepLink.h"
#include "web/LocationScripts.h"
#include "web/PageScripts.h"

namespace velmaro {

using platform::DispatchQueue;
using platform::UserDefaults;

namespace {

std::optional<UserIdentity> storedIdentity()
{
    const auto data = UserDefaults::standard().data(WebModel::userDefaultsKey);
    return data ? UserIdentity::decoded(*data) : std::nullopt;
}

} // namespace

WebModel::WebModel(std::optional<std::string> initialRoute)
    : user(storedIdentity())
    , currentRoute(initialRoute.value_or(""))
    , initialRoute(std::move(initialRoute))
{
}

void WebModel::setUser(const std::optional<UserIdentity>& identity)
{
    if (identity == user())
        return;
    user = identity;

    if (!identity) {
        UserDefaults::standard().removeObject(userDefaultsKey);
        return;
    }
    if (const auto data = identity->encoded())
        UserDefaults::standard().setData(userDefaultsKey, *data);
}

void WebModel::showRoute(const std::string& route)
{
    evaluate(PageScripts::showRoute(route));
}

void WebModel::showRouteAndCall(const std::string& route, const std::string& function,
    const std::optional<std::string>& argument)
{
    evaluate(argument ? PageScripts::showRouteAndCall(route, function, *argument)
                      : PageScripts::showRouteAndCall(route, function));
}

void WebModel::reloadKeepingRoute()
{
    evaluate(PageScripts::reloadKeepingRoute());
}

void WebModel::goBack()
{
    if (const auto view = webView.lock())
        view->goBack();
}

void WebModel::goForward()
{
    if (const auto view = webView.lock())
        view->goForward();
}

void WebModel::find(bool backwards)
{
    const auto view = webView.lock();
    if (!view)
        return;
    if (findQuery().empty()) {
        findLastResult = std::nullopt;
        return;
    }
    view->find(findQuery(), {.backwards = backwards, .caseSensitive = false, .wraps = true},
        [weakSelf = weak_from_this()](const platform::WKFindResult& result) {
            DispatchQueue::main().async([weakSelf, result] {
                if (const auto self = weakSelf.lock())
                    self->findLastResult = result.matchFound;
            });
        });
}

void WebModel::closeFind()
{
    findBarVisible = false;
    findLastResult = std::nullopt;
    evaluate(PageScripts::clearSelection());
}

void WebModel::handOffLocation(StationKind kind, const PickedLocation& location)
{
    evaluate(LocationScripts::handOffLocation(kind, location));
}

void WebModel::handleDeepLink(const platform::URL& url)
{
    const auto destination = parseDeepLink(url);
    if (!destination)
        return;
    if (destination->function.empty())
        showRoute(destination->route);
    else
        showRouteAndCall(destination->route, destination->function, destination->argument);
}

void WebModel::evaluate(const std::string& script)
{
    if (const auto view = webView.lock())
        view->evaluateJavaScript(script);
}

} // namespace velmaro
