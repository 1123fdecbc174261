#pragma once

#include "platform/foundation/NotificationCenter.h"
#include "platform/gtk/foundation/GtkDispatchQueue.h"
#include "platform/Platform.h"

#include <optional>

namespace gtk {

class AlertPresenter;
class Appearance;
class Application;
class GtkFileManager;
class GeocodingService;
class HostTrust;
class LocationServices;
class GtkProcessInfo;
class Panel;
class GtkBundle;
class RendererSafeguard;
class GtkURLCache;
class GtkUserDefaults;
class SharePanel;
class GtkUserNotificationCenter;
class WebEngine;
class GtkWorkspace;

// The desktop on GTK and WebKitGTK. Making it is cheap: display and web engine are opened when the
// application runs, and not at all in a start that only hands something to a program that runs
// already.
class GtkPlatform final : public platform::Platform {
public:
    struct Options {
        std::string identifier; // of the application, in reverse domain order
        std::optional<std::string> address; // to be opened
        std::string geocoder; // address of the service that finds places
        std::string updateFeed = {}; // https address of the list of versions; empty without a list
        std::string updateKey = {}; // with which packages are signed: Ed25519, in Base64
    };

    explicit GtkPlatform(Options options);
    ~GtkPlatform() override;

    // Trusts the certificate in the PEM file at `path`, and those that it has issued, for `hosts`
    // and no others. Returns why that cannot be done; absent when it can. To be called before the
    // application runs.
    std::optional<std::string> trust(std::vector<std::string> hosts, const std::string& path);

    // Tells whose pages will be shown first, so that its address is looked up while the program
    // starts. To be called before the application runs.
    void expectHost(std::string host) { expectedHost_ = std::move(host); }

    // Prints how this machine fits the program, and returns an exit status. To be called in place
    // of running the application.
    int diagnose(const std::string& serviceOrigin);

    // Whether the program should be started again, once the application has run.
    bool wantsRestart() const;

    GtkDispatchQueue& mainQueue() override;
    platform::UserDefaults& userDefaults() override;
    platform::Bundle& mainBundle() override;
    platform::NSApplication& application() override;
    platform::URLCache& urlCache() override;
    platform::FileManager& fileManager() override;
    platform::ProcessInfo& processInfo() override;
    platform::NSWorkspace& workspace() override;
    platform::UNUserNotificationCenter& userNotificationCenter() override;
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
        const platform::NSAlert& alert, std::function<void(int button)> completion) override;
    void showSharingServices(const platform::NSSharingServicePicker& picker,
        const platform::NSRect& rectangle, platform::NSView& view,
        platform::NSRectEdge preferredEdge) override;
    void showOpenPanel(const platform::NSOpenPanel& panel,
        std::function<void(const std::optional<std::vector<platform::URL>>& files)> completion)
        override;
    void removeAllData(
        platform::WKWebsiteDataStore store, std::function<void()> completion) override;
    void log(const std::string& line) override;

    // What all web views share; made on first use.
    WebEngine& webEngine();

private:
    // What the application asks for while it runs.
    std::optional<std::string> prepare();
    void followAppearance();
    void showPermissions();
    void saveSettings();

    GtkUserDefaults& permissions();
    LocationServices& locationServices();
    GtkUserNotificationCenter& notificationCenter();

    const Options options_;

    // In the order in which they need each other.
    std::unique_ptr<GtkDispatchQueue> mainQueue_;
    std::unique_ptr<GtkUserDefaults> settings_;
    std::unique_ptr<GtkBundle> bundle_;
    std::unique_ptr<GtkFileManager> files_;
    std::unique_ptr<GtkProcessInfo> machineInfo_;
    std::unique_ptr<GtkWorkspace> workspace_;
    std::unique_ptr<AlertPresenter> alerts_;
    std::unique_ptr<RendererSafeguard> rendererSafeguard_;
    std::unique_ptr<Appearance> appearance_;
    std::unique_ptr<SharePanel> sharing_; // the one shown last
    std::shared_ptr<const HostTrust> trust_;
    std::string expectedHost_;
    std::unique_ptr<WebEngine> webEngine_;
    std::unique_ptr<GtkUserDefaults> permissions_; // on first use, like the two below
    std::unique_ptr<LocationServices> locationServices_;
    std::unique_ptr<GtkUserNotificationCenter> notificationCenter_;
    std::unique_ptr<Panel> permissionsPanel_; // the one shown last
    platform::NotificationCenter::Observer termination_; // with notifications still shown
    std::unique_ptr<GtkURLCache> responseCache_; // made on first use, like the service below
    std::shared_ptr<GeocodingService> geocodingService_;
    std::unique_ptr<GtkUserDefaults> updateSettings_; // made with the first updater
    std::unique_ptr<Application> application_;
};

} // namespace gtk
