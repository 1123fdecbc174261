#pragma once

#include "platform/appkit/NSApplication.h"
#include "platform/gtk/foundation/SignalHandlers.h"
#include "platform/gtk/launch/RequestQueue.h"
#include "platform/ui/MenuMount.h"

#include <gtk/gtk.h>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace gtk {

class DisplayLossHandler;
class FocusTracker;
class GtkDispatchQueue;
class MainWindow;
class MenuBar;
class RendererSafeguard;
class WebEngine;

// The running program on the desktop, on the toolkit's own application object. One runs for each
// user: a later start finds it on the session bus, hands over what it was asked for and ends.
// Without a session bus every start is the first.
class Application final : public platform::NSApplication {
public:
    // The action behind the application's notifications, whose target is what they carry. Services
    // activate it over the bus, and start the program for it if need be.
    static constexpr auto notificationAction = "notification";
    using UserInfo = std::map<std::string, std::string>;

    // What the program is made of besides its windows and menus. All of it must outlive the
    // application; the functions are called while that runs.
    struct Services {
        GtkDispatchQueue& mainQueue;
        RendererSafeguard& rendererSafeguard;

        // The display is open. May return a reason why the program cannot run: it says so in one
        // line then, as it does where there is no display to open, and exits with status 1.
        std::function<std::optional<std::string>()> prepare;

        std::function<WebEngine&()> webEngine; // once prepared

        // Looks as the desktop is told to, from now on; before the first window is made.
        std::function<void()> followAppearance;

        // Takes a click on a notification that a service other than the one of this run tells of.
        std::function<void(const UserInfo&)> receiveNotificationClick;

        std::function<void()> showPermissions;

        // The program ends. Returns when the settings are on the disk, or could not be put there.
        std::function<void()> saveSettings;
    };

    // `address` is what the program was started to open. Starts nothing: a later start needs
    // neither a display nor much time.
    Application(
        Services services, const std::string& identifier, std::optional<std::string> address);
    ~Application() override;

    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    std::vector<std::shared_ptr<platform::NSWindow>> windows() const override;
    std::shared_ptr<platform::NSWindow> keyWindow() const override;
    std::shared_ptr<platform::NSWindow> mainWindow() const override;
    std::shared_ptr<platform::NSWindow> makeWindow(
        const platform::NSWindowDescription& description) override;
    bool hasApplicationIconImage() const override;

    // Where the program runs already, hands the address to it and returns at once.
    int run(platform::NSApplicationDelegate& delegate, const ui::Scene& scene) override;
    void activateIgnoringOtherApps(bool) override { } // windows come forward, one by one
    void terminate() override;

    // The next window to be ordered front may take the keyboard from another program. An empty
    // token changes nothing.
    void allowToComeForward(const std::string& activationToken);

private:
    struct ToolkitClass;

    // What the program is asked for from outside. It may have been started for any of these alone.
    void activate();
    void open(const std::vector<std::string>& addresses);
    void receiveNotificationClick(const UserInfo& userInfo);
    void chooseInDock(const std::string& actionId);

    void addAction(const char* name, const GVariantType* target, GCallback activated);
    void comeForward();
    void launchOnce();
    void makeMenus();
    void perform(ui::StandardCommand command);
    void followFocus();
    void reopen();
    void makeWindow();
    void adopt(const std::shared_ptr<MainWindow>& window);
    std::vector<std::shared_ptr<MainWindow>> allWindows() const;
    void windowClosed(MainWindow& window);
    void finish();

    const Services services_;
    const ObjectPointer<GtkApplication> object_;
    std::optional<std::string> address_;
    platform::NSApplicationDelegate* delegate_ = nullptr;
    const ui::Scene* scene_ = nullptr;

    std::unique_ptr<DisplayLossHandler> displayLossHandler_;
    RequestQueue requests_;
    std::unique_ptr<FocusTracker> focus_;
    std::unique_ptr<MenuBar> menuBar_;
    std::unique_ptr<ui::MenuMount> menus_;
    std::vector<std::shared_ptr<MainWindow>> windows_; // of the scene
    std::vector<std::shared_ptr<MainWindow>> otherWindows_;
    std::vector<std::shared_ptr<MainWindow>> closedWindows_; // whose models may still have to save
    bool isLaunched_ = false;
    bool isTerminating_ = false;
    bool isFinished_ = false;
    SignalHandlers signals_;
};

} // namespace gtk
