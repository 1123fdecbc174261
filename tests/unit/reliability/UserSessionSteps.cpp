// What can happen in a session, each with a name to tell it by.

#include "reliability/UserSession.h"

#include "platform/appkit/NSDraggingDestination.h"
#include "platform/simulated/SimulatedDownload.h"
#include "platform/webkit/WKNavigationDelegate.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

using platform::NSError;
using platform::Value;
using simulated::SimulatedWebView;
using ui::command;
using ui::shiftCommand;

namespace {

using Session = UserSession;

void pressKeys(Session& session, const ui::KeyEquivalent& keys)
{
    session.platform.application().menus().simulateKeys(keys);
}

void chooseItem(Session& session, const char* item)
{
    session.platform.application().menus().simulatePress(item);
}

void selectTab(Session& session)
{
    session.tabs()->activeIndex = session.choose(static_cast<int>(session.tabs()->tabs().size()));
}

void dragTab(Session& session)
{
    const auto tabs = session.tabs()->tabs();
    const auto any = [&] {
        return tabs[static_cast<std::size_t>(session.choose(static_cast<int>(tabs.size())))]->id;
    };
    session.tabs()->moveTab(any(), any());
}

void loadPage(Session& session)
{
    const auto page = session.page();
    if (!page)
        return;
    page->simulateLoading(true, 0.5);
    if (!session.fails())
        page->simulateTitle("Drives — Velmaro Online");
    page->simulateLoading(false, 1);
}

void reportRoute(Session& session)
{
    constexpr std::array routes = {"drives", "fuel", "reports", "", "  ", "drive/42"};
    session.post("routeBridge",
        Value::Object{{"page", routes[static_cast<std::size_t>(session.choose(routes.size()))]}});
}

void download(Session& session)
{
    const auto page = session.page();
    if (!page)
        return;
    const auto file = std::make_shared<simulated::SimulatedDownload>();
    page->navigationDelegate.lock()->navigationResponseDidBecomeDownload(*page, file);
    file->simulateAnswer("velmaro_export.vlarchive");
    if (!file->destination || session.fails())
        return file->simulateFailure("No space left on device");
    session.platform.fileManager().files[file->destination->path()] = "whole archive";
    file->simulateEnd();
}

// The document of a report that a page has handed over loads and settles; null when it does not.
std::shared_ptr<SimulatedWebView> loadReport(Session& session)
{
    const auto& views = session.platform.webViews();
    const auto found = std::ranges::find_if(views, [](const auto& candidate) {
        const auto view = candidate.lock();
        return view && view->frame && !view->documents.empty();
    });
    if (found == views.end())
        return nullptr;
    auto view = found->lock();
    if (session.fails()) {
        view->simulateFailNavigation("The process has gone");
        return nullptr;
    }
    view->simulateFinishNavigation();
    session.platform.mainQueue().advance(0.35);
    return view;
}

void saveReport(Session& session)
{
    session.post("reportBridge",
        Value::Object{{"html", "<p>"}, {"title", "Drives"}, {"filename", "drives"}});
    if (const auto view = loadReport(session)) {
        if (session.fails())
            view->simulatePDF(NSError{"No memory"});
        else
            view->simulatePDF(platform::Data{std::byte{'%'}, std::byte{'P'}});
    }
}

void printReport(Session& session)
{
    session.post("printBridge", Value::Object{{"html", "<p>"}, {"title", "Drives"}});
    if (const auto view = loadReport(session))
        view->prints.at(0)->simulateEnd(!session.fails());
}

void clickNotification(Session& session)
{
    auto& center = session.platform.userNotificationCenter();
    if (center.shown.empty() || !center.hasDelegate())
        return;
    center.simulateClick(center.shown.back());
    session.settle();
    for (const auto& url : std::exchange(session.platform.workspace().opened, {})) {
        if (url.scheme() == "velmaro")
            session.platform.application().simulateOpenURL(url.absoluteString());
    }
}

void find(Session& session)
{
    const auto page = session.page();
    const auto before = page ? page->searches.size() : 0;
    pressKeys(session, command("f"));
    session.tabs()->activeTab()->findQuery = "ferry";
    pressKeys(session, command("g"));
    if (page && page->searches.size() > before)
        page->simulateFindResult(!session.fails());
}

void clearAll(Session& session)
{
    chooseItem(session, "Clear All Cache…");
    auto& alerts = session.platform.alerts();
    if (alerts.waitingCount() == 0)
        return; // another window is in front
    alerts.simulateAnswer(alerts.front().buttons.at(session.fails() ? 1 : 0));
    session.settle();
    if (session.platform.websiteData().isWaiting())
        session.platform.websiteData().simulateRemoved();
}

void pickPlace(Session& session)
{
    if (!session.press("Find gas stations"))
        return;
    const auto completer = session.platform.searchCompleters().back().lock();
    if (!completer)
        return; // it was open, and has been closed
    if (session.fails())
        completer->simulateFailure({"The network has gone"});
    else
        completer->simulateResults({{"Ferry Terminal", "Harbour"}});
    session.settle();
    if (session.press("Ferry Terminal, Harbour")) {
        const auto& search = session.platform.localSearches().back();
        if (session.fails())
            search->simulateCompletion(std::nullopt, NSError{"The network has gone"});
        else
            search->simulatePlaces({{47.4, 8.5}});
    }
    session.settle();
    session.press("Close");
}

void dropFile(Session& session)
{
    const auto page = session.page();
    if (!page)
        return;
    session.platform.fileManager().files["/files/drives.csv"] = "a,b";
    page->draggingDestination->performDragOperation(
        {.fileURLs = {platform::URL::fileURL("/files/drives.csv")}});
}

void leaveAbout(Session& session)
{
    auto& application = session.platform.application();
    if (application.windows().size() > 1)
        application.window(1).close();
    else
        application.window().makeKeyAndOrderFront();
}

} // namespace

const std::vector<UserSession::Step>& UserSession::steps()
{
    static const std::vector<Step> steps = {
        {"open a tab", [](Session& s) { pressKeys(s, command("t")); }},
        {"close the tab", [](Session& s) { pressKeys(s, command("w")); }},
        {"reopen a tab", [](Session& s) { pressKeys(s, shiftCommand("t")); }},
        {"next tab", [](Session& s) { pressKeys(s, shiftCommand("]")); }},
        {"previous tab", [](Session& s) { pressKeys(s, shiftCommand("[")); }},
        {"select a tab", selectTab},
        {"drag a tab", dragTab},
        {"log fuel", [](Session& s) { pressKeys(s, shiftCommand("f")); }},
        {"reload", [](Session& s) { pressKeys(s, command("r")); }},
        {"zoom in", [](Session& s) { chooseItem(s, "Zoom In"); }},
        {"restore or not", [](Session& s) { chooseItem(s, "Restore Last Active Tab on Launch"); }},
        {"load the page", loadPage},
        {"report the route", reportRoute},
        {"sign in",
            [](Session& s) {
                s.post("authBridge", Value::Object{{"firstname", "Robin"}});
            }},
        {"sign out", [](Session& s) { s.post("authBridge", Value()); }},
        {"log out", [](Session& s) { s.post("logoutBridge", Value()); }},
        {"open a tab from the page", [](Session& s) { s.post("tabBridge", Value()); }},
        {"finish the tour", [](Session& s) { s.post("onboardingBridge", Value()); }},
        {"open a link",
            [](Session& s) { s.platform.application().simulateOpenURL("velmaro://drive/42"); }},
        {"download", download},
        {"save a report", saveReport},
        {"print a report", printReport},
        {"notify",
            [](Session& s) {
                s.post("notifyBridge", Value::Object{{"url", "velmaro://page/fuel"}});
            }},
        {"click the notification", clickNotification},
        {"find", find},
        {"close the find bar", [](Session& s) { s.tabs()->activeTab()->closeFind(); }},
        {"clear all", clearAll},
        {"pick a place", pickPlace},
        {"drop a file", dropFile},
        {"show About", [](Session& s) { chooseItem(s, "About Velmaro Online"); }},
        {"leave About", leaveAbout},
        {"wait", [](Session& s) { s.platform.mainQueue().advance(0.1 * s.choose(20)); }},
    };
    return steps;
}

const UserSession::Step& UserSession::step(const std::string& name)
{
    const auto found = std::ranges::find(steps(), name, &Step::name);
    return found == steps().end() ? throw std::invalid_argument("no step " + name) : *found;
}
