#include "platform/simulated/SimulatedPlatform.h"

#include "platform/foundation/NotificationCenter.h"
#include "platform/simulated/Failure.h"
#include "platform/simulated/SimulatedView.h"

#include <algorithm>

namespace simulated {

using platform::NSRect;

namespace {

double sharedArea(const NSRect& a, const NSRect& b)
{
    const double width = std::min(a.origin.x + a.size.width, b.origin.x + b.size.width)
        - std::max(a.origin.x, b.origin.x);
    const double height = std::min(a.origin.y + a.size.height, b.origin.y + b.size.height)
        - std::max(a.origin.y, b.origin.y);
    return std::max(width, 0.0) * std::max(height, 0.0);
}

} // namespace

SimulatedPlatform::SimulatedPlatform()
    : application_(*this)
{
    userDefaults_.whenChanged([] {
        platform::NotificationCenter::defaultCenter().post(
            platform::UserDefaults::didChangeNotification);
    });
}

SimulatedPlatform::~SimulatedPlatform()
{
    // Views and models use the services below until they have gone.
    application_.abandon();
    queue_.drop();
    releaseSharedObjects();
}

platform::NSScreen* SimulatedPlatform::mainScreen()
{
    const auto keyWindow = application_.keyWindow();
    auto* screen = keyWindow ? keyWindow->screen() : nullptr;
    if (screen)
        return screen;
    return screens_.empty() ? nullptr : screens_.front().get();
}

std::shared_ptr<platform::NSView> SimulatedPlatform::makeView()
{
    return std::make_shared<SimulatedView>();
}

std::shared_ptr<platform::WKWebView> SimulatedPlatform::makeWebView(
    const platform::WKWebViewConfiguration& configuration)
{
    auto webView = std::make_shared<SimulatedWebView>(configuration);
    webViews_.push_back(webView);
    return webView;
}

std::shared_ptr<platform::WKWebView> SimulatedPlatform::makeWebView(
    const NSRect& frame, const platform::WKWebViewConfiguration& configuration)
{
    auto webView = std::make_shared<SimulatedWebView>(configuration, frame);
    webViews_.push_back(webView);
    return webView;
}

std::shared_ptr<platform::NSWindow> SimulatedPlatform::makeOffscreenWindow(
    const NSRect& frame, const std::shared_ptr<platform::NSView>& contentView)
{
    const auto webView = std::dynamic_pointer_cast<SimulatedWebView>(contentView);
    if (!webView || !webView->frame)
        fail("only a web view with a frame can be in a window that no screen shows");
    auto window = std::make_shared<SimulatedWindow>(
        *this, SimulatedWindow::Options{.offscreenView = webView});
    window->setFrame(frame, true, false);
    offscreenWindows_.push_back(window);
    return window;
}

std::shared_ptr<platform::CLLocationManager> SimulatedPlatform::makeLocationManager()
{
    auto manager = std::make_shared<SimulatedLocationManager>();
    locationManagers_.push_back(manager);
    return manager;
}

std::shared_ptr<platform::MKLocalSearchCompleter> SimulatedPlatform::makeLocalSearchCompleter()
{
    auto completer = std::make_shared<SimulatedLocalSearchCompleter>();
    searchCompleters_.push_back(completer);
    return completer;
}

std::shared_ptr<platform::MKLocalSearch> SimulatedPlatform::makeLocalSearch(
    const platform::MKLocalSearchRequest& request)
{
    localSearches_.push_back(std::make_shared<SimulatedLocalSearch>(request));
    return localSearches_.back();
}

std::shared_ptr<platform::SPUStandardUpdaterController> SimulatedPlatform::makeUpdaterController(
    bool startingUpdater)
{
    auto controller = std::make_shared<SimulatedUpdaterController>(startingUpdater);
    updaterControllers_.push_back(controller);
    return controller;
}

SimulatedScreen& SimulatedPlatform::addScreen(const NSRect& visibleFrame)
{
    screens_.push_back(std::make_unique<SimulatedScreen>(visibleFrame));
    return *screens_.back();
}

SimulatedScreen* SimulatedPlatform::screenWith(const NSRect& frame)
{
    SimulatedScreen* best = nullptr;
    double bestArea = 0;
    for (const auto& screen : screens_) {
        const double area = sharedArea(screen->visibleFrame(), frame);
        if (area > bestArea) {
            best = screen.get();
            bestArea = area;
        }
    }
    return best;
}

} // namespace simulated
