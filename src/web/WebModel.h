#pragma once

#include "location/PickedLocation.h"
#include "location/StationKind.h"
#include "platform/foundation/UUID.h"
#include "platform/ui/Published.h"
#include "web/UserIdentity.h"

#include <memory>
#include <optional>
#include <string>

namespace platform {
class URL;
class WKWebView;
}

namespace velmaro {

// The state of the page shown in one tab, and the operations that steer it. The model never owns
// the web view: while there is none, every page operation does nothing. Main thread only.
class WebModel : public std::enable_shared_from_this<WebModel> {
public:
    static constexpr auto userDefaultsKey = "vl.user.identity";

    // A tab that opens `initialRoute`; without one, the service's start page. Starts with the
    // stored identity.
    explicit WebModel(std::optional<std::string> initialRoute = std::nullopt);

    const platform::UUID id;

    // Mirrors of the web view, kept by its coordinator.
    ui::Published<bool> canGoBack = false;
    ui::Published<bool> canGoForward = false;
    ui::Published<bool> isLoading = false;
    ui::Published<double> estimatedProgress = 0.0; // 0.0 to 1.0
    ui::Published<std::string> pageTitle; // empty when the page has none

    // The signed-in user as last reported by the page; absent when no user is signed in. Changed
    // through `setUser`.
    ui::Published<std::optional<UserIdentity>> user;

    // The route that the page last reported.
    ui::Published<std::string> currentRoute;

    // Find in page. The query is kept as typed, also while the bar is closed; the result is absent
    // until a search of it has completed.
    ui::Published<bool> findBarVisible = false;
    ui::Published<std::string> findQuery;
    ui::Published<std::optional<bool>> findLastResult;

    const std::optional<std::string> initialRoute;

    // Whether the page is to be loaded although the tab has not been looked at yet.
    ui::Published<bool> isLoadedAhead = false;

    // Set by the web view's host.
    std::weak_ptr<platform::WKWebView> webView;

    // Takes over a reported identity and stores it, or removes the stored one when `identity` is
    // absent. An identity equal to the present one changes nothing.
    void setUser(const std::optional<UserIdentity>& identity);

    void showRoute(const std::string& route);

    // Shows the route, then calls the page's function of that name, with one text or without.
    void showRouteAndCall(const std::string& route, const std::string& function,
        const std::optional<std::string>& argument = std::nullopt);

    // Reloads so that the page comes back on what it shows now.
    void reloadKeepingRoute();

    void goBack();
    void goForward();

    // Goes on to the next match of the query, or the previous one. The outcome arrives in
    // `findLastResult`.
    void find(bool backwards);

    // Hides the find bar and clears the selection that the search has left in the page.
    void closeFind();

    // Hands a picked place to the page and shows the kind's page around it.
    void handOffLocation(StationKind kind, const PickedLocation& location);

    // Opens an address with the application's own scheme; others are ignored.
    void handleDeepLink(const platform::URL& url);

private:
    void evaluate(const std::string& script);
};

} // namespace velmaro
