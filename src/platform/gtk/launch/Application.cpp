#include "platform/gtk/launch/Application.h"

#include "platform/appkit/NSApplicationDelegate.h"
#include "platform/appkit/NSWindowDescription.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/URL.h"
#include "platform/gtk/GtkPlatform.h"
#include "platform/gtk/launch/DisplayLossHandler.h"
#include "platform/gtk/launch/TerminationSignals.h"
#include "platform/gtk/menus/FocusTracker.h"
#include "platform/gtk/menus/MenuBar.h"
#include "platform/gtk/menus/ShortcutsPanel.h"
#include "platform/gtk/renderer/RendererSafeguard.h"
#include "platform/gtk/ui/FirstFrame.h"
#include "platform/gtk/ui/Pictures.h"
#include "platform/gtk/usernotifications/GtkUserNotificationCenter.h"
#include "platform/gtk/webkit/WebEngine.h"
#include "platform/gtk/windows/MainWindow.h"
#include "platform/ui/FocusedScene.h"

#include <algorithm>

namespace gtk {

namespace {
constexpr double longestStart = 10; // seconds until a page that is still loading holds up nothing

} // namespace

Application::Application(
    GtkPlatform& platform, const std::string& identifier, std::optional<std::string> address)
    : platform_(platform)
    , program_(identifier,
          {
              .startup = [&platform] { return platform.prepare(); },
              .activate = [this] { activate(); },
              .open = [this](const auto& addresses) { open(addresses); },
              .notificationClicked =
                  [this](const auto& userInfo) { receiveNotificationClick(userInfo); },
              .shutdown = [this] { finish(); },
          })
    , address_(std::move(address))
    , requests_(platform.mainQueue(),
          [this] { return !windows_.empty() && platform_.webEngine().isVisiblePageReady(); })
{
}

Application::~Application() = default;

std::vector<std::shared_ptr<platform::NSWindow>> Application::windows() const
{
    std::vector<std::shared_ptr<platform::NSWindow>> frontToBack;
    for (auto* native : program_.windows()) {
        for (const auto& window : allWindows()) {
            if (GTK_WINDOW(window->native().gobj()) == native)
                frontToBack.push_back(window);
        }
    }
    return frontToBack;
}

std::shared_ptr<platform::NSWindow> Application::keyWindow() const
{
    const auto windows = allWindows();
    const auto found = std::find_if(
        windows.begin(), windows.end(), [](const auto& window) { return window->isKeyWindow(); });
    return found == windows.end() ? nullptr : *found;
}

std::shared_ptr<platform::NSWindow> Application::makeWindow(
    const platform::NSWindowDescription& description)
{
    auto window = std::make_shared<MainWindow>(description);
    adopt(window);
    otherWindows_.push_back(window);
    return window;
}

std::shared_ptr<platform::NSWindow> Application::mainWindow() const
{
    const auto toplevels = Gtk::Window::list_toplevels();
    const bool isActive = std::ranges::any_of(
        toplevels, [](const auto* window) { return window->property_is_active().get_value(); });
    const auto frontToBack = windows();
    return isActive && !frontToBack.empty() ? frontToBack.front() : nullptr;
}

bool Application::hasApplicationIconImage() const
{
    return applicationIcon() != nullptr;
}

int Application::run(platform::NSApplicationDelegate& delegate, const ui::Scene& scene)
{
    delegate_ = &delegate;
    scene_ = &scene;
    for (const auto& action : scene.dockMenu)
        program_.addAction(action.id, [this, item = action.menuItem] { chooseInDock(item); });

    const TerminationSignals signals([this] { terminate(); });
    const int status = program_.run(address_);

    menus_.reset();
    focus_.reset();

    // Only now, since another start would wait for this one as long as its name is on the bus.
    closedWindows_.clear();
    windows_.clear();
    otherWindows_.clear();
    return status;
}

void Application::terminate()
{
    if (isTerminating_)
        return;
    isTerminating_ = true;
    platform_.mainQueue().async([this] {
        finish(); // not left to the end of the main loop, which an open alert may keep from ending
        program_.quit();
    });
}

void Application::activate()
{
    if (isTerminating_)
        return;
    if (isLaunched_)
        reopen();
    launchOnce();
}

void Application::open(const std::vector<std::string>& addresses)
{
    if (isTerminating_)
        return;
    comeForward();
    for (const auto& address : addresses) {
        if (const auto url = platform::URL::fromString(address))
            requests_.enqueue([this, url = *url] { windows_.front()->mount().openURL(url); });
    }
}

void Application::receiveNotificationClick(const Program::UserInfo& userInfo)
{
    if (isTerminating_)
        return;
    launchOnce();
    platform_.notificationCenter().receiveClick(userInfo);
}

void Application::chooseInDock(const std::string& menuItem)
{
    if (isTerminating_)
        return;
    comeForward();
    requests_.enqueue([this, menuItem] {
        // The desktop may give the keyboard late, or to another window.
        ui::FocusedScene::current().values = windows_.front()->mount().focusedValues();
        menuBar_->choose(menuItem);
        followFocus();
    });
}

void Application::allowToComeForward(const std::string& activationToken)
{
    if (activationToken.empty())
        return;
    for (auto* window : program_.windows())
        gtk_window_set_startup_id(window, activationToken.c_str());
}

void Application::comeForward()
{
    if (isLaunched_ && !windows_.empty())
        windows_.front()->makeKeyAndOrderFront();
    else if (isLaunched_)
        makeWindow();
    launchOnce();
}

void Application::launchOnce()
{
    if (isLaunched_)
        return;
    isLaunched_ = true;
    program_.hold(); // windows alone do not decide how long the program lives
    displayLossHandler_ = std::make_unique<DisplayLossHandler>([this] { finish(); });
    platform_.webEngine().signalVisiblePageChanged().connect([this] {
        requests_.update();
        platform_.mainQueue().endStart();
    });
    platform_.mainQueue().asyncAfter(
        longestStart, [&queue = platform_.mainQueue()] { queue.endStart(); });

    platform_.followAppearance();
    makeMenus();
    delegate_->applicationWillFinishLaunching(*this);
    makeWindow();
    platform_.rendererSafeguard().watch(
        [this] { return windows_.empty() ? nullptr : windows_.front().get(); },
        platform_.webEngine());
    delegate_->applicationDidFinishLaunching(*this);
}

void Application::makeMenus()
{
    focus_ = std::make_unique<FocusTracker>([this] { followFocus(); });
    menuBar_ = std::make_unique<MenuBar>(
        program_.native(), [this](ui::StandardCommand command) { perform(command); });
    menus_ = std::make_unique<ui::MenuMount>(
        *scene_, [this](auto menus) { menuBar_->show(std::move(menus)); });
}

void Application::perform(ui::StandardCommand command)
{
    if (command == ui::StandardCommand::quit)
        terminate();
    else if (command == ui::StandardCommand::showPermissions)
        platform_.showPermissions();
    else if (command == ui::StandardCommand::showShortcuts)
        showShortcuts(menuBar_->menus(), focus_->window());
    else
        focus_->perform(command);
}

void Application::followFocus()
{
    const auto found = std::find_if(windows_.begin(), windows_.end(), [this](const auto& window) {
        return GTK_WINDOW(window->native().gobj()) == focus_->window();
    });
    ui::FocusedScene::current().values =
        found == windows_.end() ? nullptr : (*found)->mount().focusedValues();
}

void Application::reopen()
{
    const auto windows = allWindows();
    const bool hasVisibleWindows = std::any_of(
        windows.begin(), windows.end(), [](const auto& window) { return window->isVisible(); });
    if (!delegate_->applicationShouldHandleReopen(*this, hasVisibleWindows))
        return;
    if (windows_.empty())
        makeWindow();
    else
        windows_.front()->makeKeyAndOrderFront();
}

void Application::makeWindow()
{
    auto window = std::make_shared<MainWindow>(*scene_);
    adopt(window);
    windows_.push_back(window);

    whenEngineHasAnswered([weakWindow = std::weak_ptr(window)] {
        if (const auto window = weakWindow.lock())
            window->makeKeyAndOrderFront();
    });
}

void Application::adopt(const std::shared_ptr<MainWindow>& window)
{
    program_.add(window->native());
    window->signalClosed().connect([this, window = window.get()] { windowClosed(*window); });
}

std::vector<std::shared_ptr<MainWindow>> Application::allWindows() const
{
    auto all = windows_;
    all.insert(all.end(), otherWindows_.begin(), otherWindows_.end());
    return all;
}

void Application::windowClosed(MainWindow& window)
{
    const auto self = std::static_pointer_cast<MainWindow>(window.shared_from_this());
    if (std::erase(windows_, self) + std::erase(otherWindows_, self) == 0)
        return;
    closedWindows_.push_back(self);

    // Those beside the scene's, such as About, are no reason to go on.
    if (windows_.empty() && delegate_->applicationShouldTerminateAfterLastWindowClosed(*this))
        terminate();
    else
        platform_.mainQueue().async([this] { closedWindows_.clear(); });
}

void Application::finish()
{
    if (!isLaunched_ || isFinished_)
        return;
    isFinished_ = true;
    platform::NotificationCenter::defaultCenter().post(willTerminateNotification, this);
    platform_.rendererSafeguard().end();
    platform_.saveSettings();
}

} // namespace gtk
