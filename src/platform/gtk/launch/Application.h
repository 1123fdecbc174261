#pragma once

#include "platform/appkit/NSApplication.h"
#include "platform/gtk/launch/Program.h"
#include "platform/gtk/launch/RequestQueue.h"
#include "platform/ui/MenuMount.h"

#include <optional>

namespace gtk {

class FocusTracker;
class GtkPlatform;
class DisplayLossHandler;
class MainWindow;
class MenuBar;

// The running program on the desktop.
class Application final : public platform::NSApplication {
public:
    // `address` is what the program was started to open. `platform` owns this.
    Application(
        GtkPlatform& platform, const std::string& identifier, std::optional<std::string> address);
    ~Application() override;

    std::vector<std::shared_ptr<platform::NSWindow>> windows() const override;
    std::shared_ptr<platform::NSWindow> keyWindow() const override;
    std::shared_ptr<platform::NSWindow> mainWindow() const override;
    std::shared_ptr<platform::NSWindow> makeWindow(
        const platform::NSWindowDescription& description) override;
    bool hasApplicationIconImage() const override;

    // In a start that is not the user's first, hands the address to the running program and returns
    // at once.
    int run(platform::NSApplicationDelegate& delegate, const ui::Scene& scene) override;
    void activateIgnoringOtherApps(bool) override { } // windows come forward, one by one
    void terminate() override;

    // The next window to be ordered front may take the keyboard from another program. An empty
    // token changes nothing.
    void allowToComeForward(const std::string& activationToken);

private:
    void activate();
    void open(const std::vector<std::string>& addresses);
    void receiveNotificationClick(const Program::UserInfo& userInfo);
    void chooseInDock(const std::string& menuItem);

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

    GtkPlatform& platform_;
    Program program_;
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
};

} // namespace gtk
