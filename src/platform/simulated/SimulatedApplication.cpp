#include "platform/simulated/SimulatedApplication.h"

#include "platform/appkit/NSWindowDescription.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/simulated/Failure.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/ui/FocusedScene.h"

#include <algorithm>
#include <utility>

namespace simulated {

SimulatedApplication::SimulatedApplication(SimulatedPlatform& platform)
    : platform_(platform)
{
}

std::vector<std::shared_ptr<platform::NSWindow>> SimulatedApplication::windows() const
{
    return {windows_.begin(), windows_.end()};
}

std::shared_ptr<platform::NSWindow> SimulatedApplication::keyWindow() const
{
    return keyWindow_.lock();
}

std::shared_ptr<platform::NSWindow> SimulatedApplication::makeWindow(
    const platform::NSWindowDescription& description)
{
    windows_.push_back(std::make_shared<SimulatedWindow>(
        platform_, SimulatedWindow::Options{.title = description.title, .isVisible = false}));
    windows_.back()->setFrame({{}, description.contentSize}, false, false);
    windows_.back()->show(description.content);
    return windows_.back();
}

int SimulatedApplication::run(platform::NSApplicationDelegate& delegate, const ui::Scene& scene)
{
    if (!session_) {
        fail("the program runs, and nobody has prepared a session");
        return 1;
    }
    launch(delegate, scene);
    session_();
    if (!hasTerminated_)
        simulateQuit();
    return 0;
}

void SimulatedApplication::launch(platform::NSApplicationDelegate& delegate, const ui::Scene& scene)
{
    delegate_ = &delegate;
    scene_ = &scene;
    menus_.show(scene);
    delegate.applicationWillFinishLaunching(*this);
    simulateNewWindow();
    delegate.applicationDidFinishLaunching(*this);
    platform_.mainQueue().runUntilIdle();
}

void SimulatedApplication::terminate()
{
    platform_.mainQueue().async([this] { finish(); });
}

SimulatedWindow& SimulatedApplication::window(std::size_t index)
{
    if (index >= windows_.size()) {
        fail("there is no such window");
        std::abort(); // nothing could be returned
    }
    return *windows_[index];
}

SimulatedWindow& SimulatedApplication::simulateNewWindow()
{
    auto& window = simulateBareWindow({.title = scene_->title, .isOfScene = true});
    window.show(scene_->content());
    return window;
}

SimulatedWindow& SimulatedApplication::simulateBareWindow(SimulatedWindow::Options options)
{
    windows_.push_back(std::make_shared<SimulatedWindow>(platform_, std::move(options)));
    keyWindow_ = windows_.back();
    mainWindow_ = keyWindow_;
    followFocus();
    return *windows_.back();
}

void SimulatedApplication::simulateOpenURL(const std::string& url)
{
    const auto address = platform::URL::fromString(url);
    if (!address)
        return fail("no desktop hands over an address that is none: " + url);
    window().mount().openURL(*address);
    platform_.mainQueue().runUntilIdle();
}

bool SimulatedApplication::simulateReopen()
{
    const bool hasVisibleWindows = std::ranges::any_of(windows_, &SimulatedWindow::isVisible);
    if (!delegate_->applicationShouldHandleReopen(*this, hasVisibleWindows))
        return false;
    if (windows_.empty())
        simulateNewWindow();
    return true;
}

void SimulatedApplication::simulateCloseWindow()
{
    window().close();
    platform_.mainQueue().runUntilIdle();
}

void SimulatedApplication::simulateResignActive()
{
    keyWindow_.reset();
    mainWindow_.reset();
}

void SimulatedApplication::simulateQuit()
{
    terminate();
    platform_.mainQueue().runUntilIdle();
}

void SimulatedApplication::windowBecameKey(SimulatedWindow& window)
{
    keyWindow_ = std::static_pointer_cast<SimulatedWindow>(window.shared_from_this());
    mainWindow_ = keyWindow_;
    followFocus();
}

// Another program may have the keyboard without a change for the menus.
void SimulatedApplication::followFocus()
{
    const auto window = keyWindow_.lock();
    ui::FocusedScene::current().values = window ? window->focusedValues() : nullptr;
}

// What the window shows may be what has closed it, so it is taken down only after the event.
void SimulatedApplication::windowClosed(SimulatedWindow& window)
{
    const auto found =
        std::ranges::find(windows_, &window, [](const auto& candidate) { return candidate.get(); });
    if (found == windows_.end())
        return;
    closedWindows_.push_back(*found);
    windows_.erase(found);
    keyWindow_ = windows_.empty() ? nullptr : windows_.front();
    mainWindow_ = keyWindow_;
    followFocus();
    platform_.mainQueue().async([this] { removeClosedWindows(); });
}

void SimulatedApplication::removeClosedWindows()
{
    // The models that the last window owns still want to save.
    if (std::ranges::none_of(windows_, &SimulatedWindow::isOfScene) && delegate_
        && delegate_->applicationShouldTerminateAfterLastWindowClosed(*this))
        finish();
    closedWindows_.clear();
}

void SimulatedApplication::finish()
{
    if (std::exchange(hasTerminated_, true))
        return;
    platform::NotificationCenter::defaultCenter().post(willTerminateNotification, this);
    abandon();
    platform_.mainQueue().drop();
}

void SimulatedApplication::abandon()
{
    menus_.takeDown();
    windows_.clear();
    closedWindows_.clear();
}

} // namespace simulated
