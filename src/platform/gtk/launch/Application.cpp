#include "platform/gtk/launch/Application.h"

#include "platform/appkit/NSApplicationDelegate.h"
#include "platform/appkit/NSWindowDescription.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/URL.h"
#include "platform/gtk/foundation/GtkDispatchQueue.h"
#include "platform/gtk/launch/DisplayLossHandler.h"
#include "platform/gtk/launch/TerminationSignals.h"
#include "platform/gtk/menus/FocusTracker.h"
#include "platform/gtk/menus/MenuBar.h"
#include "platform/gtk/menus/ShortcutsPanel.h"
#include "platform/gtk/renderer/RendererSafeguard.h"
#include "platform/gtk/ui/FirstFrame.h"
#include "platform/gtk/ui/Pictures.h"
#include "platform/gtk/webkit/WebEngine.h"
#include "platform/gtk/windows/MainWindow.h"
#include "platform/ui/FocusedScene.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <gtkmm/init.h>

namespace gtk {

namespace {
constexpr double longestStart = 10; // seconds until a page that is still loading holds up nothing
constexpr auto applicationKey = "velmaro-application";

// Called before anything exists that would have to be wound up.
[[noreturn]] void giveUp(const std::string& reason)
{
    std::fprintf(stderr, "velmaro-online: %s\n", reason.c_str());
    std::_Exit(EXIT_FAILURE);
}

Application::UserInfo userInfoFrom(GVariant* target)
{
    Application::UserInfo userInfo;
    GVariantIter entries;
    g_variant_iter_init(&entries, target);
    const char* key = nullptr;
    const char* value = nullptr;
    while (g_variant_iter_next(&entries, "{&s&s}", &key, &value))
        userInfo[key] = value;
    return userInfo;
}

} // namespace

// The toolkit's class of the application object. gtkmm's would open the display as soon as it is
// made.
struct Application::ToolkitClass {
    static GtkApplication* makeObject(const std::string& identifier)
    {
        const auto initialize = [](gpointer objectClass, gpointer) {
            auto* functions = G_APPLICATION_CLASS(objectClass);
            functions->startup = startup;
            functions->activate = [](GApplication* object) { of(object).activate(); };
            functions->open = open;
            functions->shutdown = shutdown;
        };
        static const auto type = g_type_register_static_simple(GTK_TYPE_APPLICATION,
            "VelmaroApplication", sizeof(GtkApplicationClass), initialize, sizeof(GtkApplication),
            nullptr, GTypeFlags());
        return GTK_APPLICATION(g_object_new(type, "application-id", identifier.c_str(), "flags",
            G_APPLICATION_HANDLES_OPEN, "register-session", TRUE, nullptr));
    }

    static Application& of(GApplication* object)
    {
        return *static_cast<Application*>(g_object_get_data(G_OBJECT(object), applicationKey));
    }

    static GApplicationClass* parent()
    {
        return G_APPLICATION_CLASS(g_type_class_peek_static(GTK_TYPE_APPLICATION));
    }

    static void startup(GApplication* object)
    {
        gtk_disable_setlocale(); // the program has chosen its locale
        if (!gtk_init_check())
            giveUp("there is no display to open a window on");
        Gtk::init_gtkmm_internals();
        if (const auto reason = of(object).services_.prepare())
            giveUp(*reason);
        parent()->startup(object);
    }

    static void open(GApplication* object, GFile** files, gint count, const gchar*)
    {
        std::vector<std::string> addresses; // as their senders wrote them
        for (gint i = 0; i < count; ++i) {
            auto* address = g_file_get_uri(files[i]);
            addresses.emplace_back(address);
            g_free(address);
        }
        of(object).open(addresses);
    }

    static void shutdown(GApplication* object)
    {
        of(object).finish();
        parent()->shutdown(object);
    }
};

Application::Application(
    Services services, const std::string& identifier, std::optional<std::string> address)
    : services_(std::move(services))
    , object_(ToolkitClass::makeObject(identifier))
    , address_(std::move(address))
    , requests_(services_.mainQueue,
          [this] { return !windows_.empty() && services_.webEngine().isVisiblePageReady(); })
{
    g_object_set_data(G_OBJECT(object_.get()), applicationKey, this);
    const auto clicked = +[](GSimpleAction*, GVariant* target, Application* self) {
        self->receiveNotificationClick(userInfoFrom(target));
    };
    addAction(notificationAction, G_VARIANT_TYPE("a{ss}"), G_CALLBACK(clicked));
}

Application::~Application() = default;

std::vector<std::shared_ptr<platform::NSWindow>> Application::windows() const
{
    std::vector<std::shared_ptr<platform::NSWindow>> frontToBack;
    for (auto* item = gtk_application_get_windows(object_.get()); item; item = item->next) {
        for (const auto& window : allWindows()) {
            if (GTK_WINDOW(window->native().gobj()) == item->data)
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
    const auto chosen = +[](GSimpleAction* action, GVariant*, Application* self) {
        self->chooseInDock(g_action_get_name(G_ACTION(action)));
    };
    for (const auto& action : scene.dockMenu)
        addAction(action.id.c_str(), nullptr, G_CALLBACK(chosen));

    const TerminationSignals signals([this] { terminate(); });
    std::string name = g_application_get_application_id(G_APPLICATION(object_.get()));
    std::vector<char*> arguments{name.data()};
    if (address_)
        arguments.push_back(address_->data());
    const int status = g_application_run(
        G_APPLICATION(object_.get()), static_cast<int>(arguments.size()), arguments.data());

    menus_.reset();
    focus_.reset();

    // Windows go only now that the name is off the bus: until then, another start waits for this
    // one.
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
    services_.mainQueue.async([this] {
        finish(); // not left to the end of the main loop, which an open alert may keep from ending
        g_application_quit(G_APPLICATION(object_.get()));
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

void Application::receiveNotificationClick(const UserInfo& userInfo)
{
    if (isTerminating_)
        return;
    launchOnce();
    services_.receiveNotificationClick(userInfo);
}

void Application::chooseInDock(const std::string& actionId)
{
    if (isTerminating_)
        return;
    comeForward();
    const auto action = std::ranges::find(scene_->dockMenu, actionId, &ui::DockAction::id);
    requests_.enqueue([this, menuItem = action->menuItem] {
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
    for (auto* item = gtk_application_get_windows(object_.get()); item; item = item->next)
        gtk_window_set_startup_id(GTK_WINDOW(item->data), activationToken.c_str());
}

void Application::addAction(const char* name, const GVariantType* target, GCallback activated)
{
    const ObjectPointer<GSimpleAction> action(g_simple_action_new(name, target));
    signals_.connect(action.get(), "activate", activated, this);
    g_action_map_add_action(G_ACTION_MAP(object_.get()), G_ACTION(action.get()));
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
    // Windows alone do not decide how long the program lives.
    g_application_hold(G_APPLICATION(object_.get()));
    displayLossHandler_ = std::make_unique<DisplayLossHandler>([this] { finish(); });
    auto& queue = services_.mainQueue;
    services_.webEngine().signalVisiblePageChanged().connect([this, &queue] {
        requests_.update();
        queue.endStart();
    });
    queue.asyncAfter(longestStart, [&queue] { queue.endStart(); });

    services_.followAppearance();
    makeMenus();
    delegate_->applicationWillFinishLaunching(*this);
    makeWindow();
    services_.rendererSafeguard.watch(
        [this] { return windows_.empty() ? nullptr : windows_.front().get(); },
        services_.webEngine());
    delegate_->applicationDidFinishLaunching(*this);
}

void Application::makeMenus()
{
    focus_ = std::make_unique<FocusTracker>([this] { followFocus(); });
    menuBar_ = std::make_unique<MenuBar>(
        object_.get(), [this](ui::StandardCommand command) { perform(command); });
    menus_ = std::make_unique<ui::MenuMount>(
        *scene_, [this](auto menus) { menuBar_->show(std::move(menus)); });
}

void Application::perform(ui::StandardCommand command)
{
    if (command == ui::StandardCommand::quit)
        terminate();
    else if (command == ui::StandardCommand::showPermissions)
        services_.showPermissions();
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
    gtk_application_add_window(object_.get(), GTK_WINDOW(window->native().gobj()));
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

    // Windows beside the scene's, such as About, do not keep the program alive.
    if (windows_.empty() && delegate_->applicationShouldTerminateAfterLastWindowClosed(*this))
        terminate();
    else
        services_.mainQueue.async([this] { closedWindows_.clear(); });
}

void Application::finish()
{
    if (!isLaunched_ || isFinished_)
        return;
    isFinished_ = true;
    platform::NotificationCenter::defaultCenter().post(willTerminateNotification, this);
    services_.rendererSafeguard.end();
    services_.saveSettings();
}

} // namespace gtk
