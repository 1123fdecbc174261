#pragma once

#include "platform/appkit/NSApplication.h"
#include "platform/appkit/NSApplicationDelegate.h"
#include "platform/foundation/URL.h"
#include "platform/simulated/SimulatedMenus.h"
#include "platform/simulated/SimulatedWindow.h"
#include "platform/ui/Scene.h"

#include <functional>

namespace simulated {

// A program whose user is the test.
class SimulatedApplication final : public platform::NSApplication {
public:
    explicit SimulatedApplication(SimulatedPlatform& platform);

    std::vector<std::shared_ptr<platform::NSWindow>> windows() const override;
    std::shared_ptr<platform::NSWindow> keyWindow() const override;
    std::shared_ptr<platform::NSWindow> mainWindow() const override { return mainWindow_.lock(); }
    std::shared_ptr<platform::NSWindow> makeWindow(
        const platform::NSWindowDescription& description) override;
    bool hasApplicationIconImage() const override { return hasIcon; }
    void activateIgnoringOtherApps(bool) override { ++activations; }
    void terminate() override;

    // Launches, lets the prepared session use the program, and quits it if the session has not.
    int run(platform::NSApplicationDelegate& delegate, const ui::Scene& scene) override;

    // What is to happen between launch and end; `run` fails the test without one.
    void prepareSession(std::function<void()> session) { session_ = std::move(session); }

    // The first half of `run`: the program has launched and its window is up when this returns.
    // Both arguments must outlive the platform.
    void launch(platform::NSApplicationDelegate& delegate, const ui::Scene& scene);

    bool hasTerminated() const { return hasTerminated_; }

    // The window opened at `index`; fails the test when there is no such window.
    SimulatedWindow& window(std::size_t index = 0);

    // One more window of the scene, or a bare one such as a panel.
    SimulatedWindow& simulateNewWindow();
    SimulatedWindow& simulateBareWindow(SimulatedWindow::Options options);

    // The desktop hands an address to the program.
    void simulateOpenURL(const std::string& url);

    // The user starts the program once more. Tells whether the platform did its default.
    bool simulateReopen();

    SimulatedMenus& menus() { return menus_; }

    // The user gives the keyboard to another program.
    void simulateResignActive();

    // One of its dialogs takes the keyboard from the window that the user works in.
    void simulateDialogBecameKey() { keyWindow_.reset(); }

    // The user closes the first window; or quits, or the session ends. All that follows has
    // happened on return.
    void simulateCloseWindow();
    void simulateQuit();

    bool hasIcon = false;
    int activations = 0; // how often it came forward

private:
    friend class SimulatedPlatform;
    friend class SimulatedWindow;

    void windowBecameKey(SimulatedWindow& window);
    void followFocus();
    void windowClosed(SimulatedWindow& window);
    void removeClosedWindows();
    void finish();
    void abandon();

    SimulatedPlatform& platform_;
    platform::NSApplicationDelegate* delegate_ = nullptr;
    const ui::Scene* scene_ = nullptr;
    std::function<void()> session_;
    SimulatedMenus menus_;
    std::vector<std::shared_ptr<SimulatedWindow>> windows_;
    std::vector<std::shared_ptr<SimulatedWindow>> closedWindows_; // until the event is over
    std::weak_ptr<SimulatedWindow> keyWindow_;
    std::weak_ptr<SimulatedWindow> mainWindow_;
    bool hasTerminated_ = false;
};

} // namespace simulated
