#pragma once

#include "platform/appkit/NSSharingServicePicker.h"
#include "platform/Platform.h"
#include "platform/simulated/Faults.h"
#include "platform/simulated/SimulatedAlerts.h"
#include "platform/simulated/SimulatedApplication.h"
#include "platform/simulated/SimulatedBundle.h"
#include "platform/simulated/SimulatedFileManager.h"
#include "platform/simulated/SimulatedLocalSearch.h"
#include "platform/simulated/SimulatedLocalSearchCompleter.h"
#include "platform/simulated/SimulatedLocationManager.h"
#include "platform/simulated/SimulatedNotificationCenter.h"
#include "platform/simulated/SimulatedOpenPanels.h"
#include "platform/simulated/SimulatedProcessInfo.h"
#include "platform/simulated/SimulatedQueue.h"
#include "platform/simulated/SimulatedScreen.h"
#include "platform/simulated/SimulatedUpdaterController.h"
#include "platform/simulated/SimulatedURLCache.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "platform/simulated/SimulatedWebsiteData.h"
#include "platform/simulated/SimulatedWebView.h"
#include "platform/simulated/SimulatedWorkspace.h"

#include <string>
#include <vector>

namespace simulated {

// A desktop in memory: no screen, no settings, no time passing, until the test provides them. It is
// the current platform for as long as it lives.
class SimulatedPlatform final : public platform::Platform {
public:
    SimulatedPlatform();
    ~SimulatedPlatform() override;

    SimulatedQueue& mainQueue() override { return queue_; }
    SimulatedUserDefaults& userDefaults() override { return userDefaults_; }
    SimulatedBundle& mainBundle() override { return bundle_; }
    SimulatedApplication& application() override { return application_; }
    SimulatedURLCache& urlCache() override { return urlCache_; }
    SimulatedFileManager& fileManager() override { return fileManager_; }
    SimulatedProcessInfo& processInfo() override { return processInfo_; }
    SimulatedWorkspace& workspace() override { return workspace_; }
    SimulatedNotificationCenter& userNotificationCenter() override { return notifications_; }
    SimulatedAlerts& alerts() { return alerts_; }
    SimulatedOpenPanels& openPanels() { return openPanels_; }
    SimulatedWebsiteData& websiteData() { return websiteData_; }
    Faults& faults() { return faults_; }
    platform::NSScreen* mainScreen() override;
    std::shared_ptr<platform::NSView> makeView() override;
    std::shared_ptr<platform::WKWebView> makeWebView(
        const platform::WKWebViewConfiguration& configuration) override;
    std::shared_ptr<platform::WKWebView> makeWebView(const platform::NSRect& frame,
        const platform::WKWebViewConfiguration& configuration) override;
    std::shared_ptr<platform::NSWindow> makeOffscreenWindow(const platform::NSRect& frame,
        const std::shared_ptr<platform::NSView>& contentView) override;
    std::shared_ptr<platform::CLLocationManager> makeLocationManager() override;
    std::shared_ptr<platform::MKLocalSearchCompleter> makeLocalSearchCompleter() override;
    std::shared_ptr<platform::MKLocalSearch> makeLocalSearch(
        const platform::MKLocalSearchRequest& request) override;
    std::shared_ptr<platform::SPUStandardUpdaterController> makeUpdaterController(
        bool startingUpdater) override;
    void runModal(
        const platform::NSAlert& alert, std::function<void(int button)> completion) override
    {
        alerts_.run(alert, std::move(completion));
    }
    void showSharingServices(const platform::NSSharingServicePicker& picker,
        const platform::NSRect& rectangle, platform::NSView& view,
        platform::NSRectEdge preferredEdge) override
    {
        shares.push_back({picker.items, rectangle, view.window(), preferredEdge});
    }

    void showOpenPanel(
        const platform::NSOpenPanel& panel, platform::NSOpenPanel::Completion completion) override
    {
        openPanels_.begin(panel, std::move(completion));
    }

    void removeAllData(
        platform::WKWebsiteDataStore store, std::function<void()> completion) override
    {
        websiteData_.remove(store, std::move(completion));
    }
    void log(const std::string& line) override { logLines.push_back(line); }

    // Plugs in one more screen; the first is the main one.
    SimulatedScreen& addScreen(const platform::NSRect& visibleFrame);
    void removeScreens() { screens_.clear(); }

    // The screen that shares the largest area with `frame`; null when no screen shares any.
    SimulatedScreen* screenWith(const platform::NSRect& frame);

    // The web views made so far, in order, also those that have gone since.
    const std::vector<std::weak_ptr<SimulatedWebView>>& webViews() const { return webViews_; }

    // The managers, completers and searches made so far, in order. Managers and completers are
    // listed also when they have gone since.
    const std::vector<std::weak_ptr<SimulatedLocationManager>>& locationManagers() const
    {
        return locationManagers_;
    }
    const std::vector<std::weak_ptr<SimulatedLocalSearchCompleter>>& searchCompleters() const
    {
        return searchCompleters_;
    }
    const std::vector<std::shared_ptr<SimulatedLocalSearch>>& localSearches() const
    {
        return localSearches_;
    }

    // The windows made for no screen, in order, also those that have gone since.
    const std::vector<std::weak_ptr<SimulatedWindow>>& offscreenWindows() const
    {
        return offscreenWindows_;
    }

    // One list of what can be done with files, as it was asked for.
    struct Share {
        std::vector<platform::URL> items;
        platform::NSRect rectangle;
        const platform::NSWindow* window; // identity only; null for a view in no window
        platform::NSRectEdge edge;
    };

    // The updaters made so far, in order, also those that have gone since.
    const std::vector<std::weak_ptr<SimulatedUpdaterController>>& updaterControllers() const
    {
        return updaterControllers_;
    }

    std::vector<Share> shares;
    std::vector<std::string> logLines;

private:
    Faults faults_;
    SimulatedQueue queue_;
    SimulatedUserDefaults userDefaults_{faults_};
    SimulatedURLCache urlCache_;
    SimulatedFileManager fileManager_{faults_};
    SimulatedProcessInfo processInfo_;
    SimulatedWorkspace workspace_;
    SimulatedAlerts alerts_;
    SimulatedOpenPanels openPanels_;
    SimulatedNotificationCenter notifications_{queue_, faults_};
    SimulatedWebsiteData websiteData_;
    SimulatedBundle bundle_;
    std::vector<std::unique_ptr<SimulatedScreen>> screens_;
    std::vector<std::weak_ptr<SimulatedWebView>> webViews_;
    std::vector<std::weak_ptr<SimulatedWindow>> offscreenWindows_;
    std::vector<std::weak_ptr<SimulatedLocationManager>> locationManagers_;
    std::vector<std::weak_ptr<SimulatedLocalSearchCompleter>> searchCompleters_;
    std::vector<std::shared_ptr<SimulatedLocalSearch>> localSearches_;
    std::vector<std::weak_ptr<SimulatedUpdaterController>> updaterControllers_;
    SimulatedApplication application_;
};

} // namespace simulated
