#include "platform/gtk/GtkPlatform.h"

#include "platform/appkit/NSAlert.h"
#include "platform/appkit/NSSharingServicePicker.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/gtk/corelocation/GtkLocationManager.h"
#include "platform/gtk/corelocation/LocationServices.h"
#include "platform/gtk/desktop/Appearance.h"
#include "platform/gtk/desktop/GtkWorkspace.h"
#include "platform/gtk/diagnosis/Diagnosis.h"
#include "platform/gtk/foundation/GtkBundle.h"
#include "platform/gtk/foundation/GtkDispatchQueue.h"
#include "platform/gtk/foundation/GtkFileManager.h"
#include "platform/gtk/foundation/GtkProcessInfo.h"
#include "platform/gtk/foundation/GtkUserDefaults.h"
#include "platform/gtk/foundation/Sandboxing.h"
#include "platform/gtk/foundation/StandardPaths.h"
#include "platform/gtk/launch/Application.h"
#include "platform/gtk/mapkit/GtkLocalSearch.h"
#include "platform/gtk/mapkit/GtkLocalSearchCompleter.h"
#include "platform/gtk/network/HostTrust.h"
#include "platform/gtk/panels/AlertPresenter.h"
#include "platform/gtk/panels/OpenPanel.h"
#include "platform/gtk/panels/PermissionsView.h"
#include "platform/gtk/panels/SharePanel.h"
#include "platform/gtk/renderer/RendererSafeguard.h"
#include "platform/gtk/sparkle/GtkUpdaterController.h"
#include "platform/gtk/ui/NativeWidget.h"
#include "platform/gtk/ui/NativeWindow.h"
#include "platform/gtk/usernotifications/DesktopNotifications.h"
#include "platform/gtk/usernotifications/GtkUserNotificationCenter.h"
#include "platform/gtk/usernotifications/PortalNotifications.h"
#include "platform/gtk/webkit/GtkWebView.h"
#include "platform/gtk/webkit/OffscreenWebView.h"
#include "platform/gtk/webkit/Sandbox.h"
#include "platform/gtk/webkit/WebEngine.h"
#include "platform/gtk/webkit/WebsiteData.h"
#include "platform/gtk/windows/GtkScreen.h"
#include "platform/gtk/windows/OffscreenWindow.h"
#include "platform/ui/Views.h"

#include <cassert>
#include <future>
#include <gio/gio.h>
#include <glibmm/init.h>
#include <gtkmm/box.h>

namespace gtk {

namespace {

constexpr auto programName = "velmaro-online";
constexpr auto settingsName = "settings.json";
constexpr auto permissionsName = "permissions.json"; // what the user lets this program do
constexpr auto appearanceName = "appearance.json";
constexpr auto responsesName = "responses";
constexpr auto updateSettingsName = "updates.json"; // what the updater has to remember
constexpr auto updatesName = "updates";

StandardPaths standardPaths()
{
    return StandardPaths::forProgram(programName);
}

// A native view with nothing in it, through which clicks fall.
class PlainView final : public platform::NSView, public NativeView {
public:
    PlainView() { area_.set_can_target(false); }
    ~PlainView() override
    {
        if (area_.get_parent())
            area_.unparent();
    }

    platform::NSWindow* window() const override { return platformWindow(area_); }
    Gtk::Widget& nativeWidget() override { return area_; }

private:
    Gtk::Box area_;
};

} // namespace

GtkPlatform::GtkPlatform(Options options)
    : options_(std::move(options))
    , mainQueue_(std::make_unique<GtkDispatchQueue>())
    , settings_(std::make_unique<GtkUserDefaults>(
          standardPaths().config / settingsName, *mainQueue_, platform::NSLog))
    , bundle_(std::make_unique<GtkBundle>())
    , files_(std::make_unique<GtkFileManager>())
    , machineInfo_(std::make_unique<GtkProcessInfo>())
    , workspace_(std::make_unique<GtkWorkspace>())
    , alerts_(std::make_unique<AlertPresenter>())
    , rendererSafeguard_(std::make_unique<RendererSafeguard>(standardPaths(), *mainQueue_))
    , trust_(std::make_shared<HostTrust>())
{
    settings_->whenChanged([] {
        platform::NotificationCenter::defaultCenter().post(
            platform::UserDefaults::didChangeNotification);
    });
    // Desktops find the program's windows, and its desktop entry from them, by this name.
    g_set_prgname(options_.identifier.c_str());
    // Texts for people follow the user's language; numbers in scripts and files must not.
    Glib::set_init_to_users_preferred_locale(false);
    application_ = std::make_unique<Application>(
        Application::Services{
            .mainQueue = *mainQueue_,
            .rendererSafeguard = *rendererSafeguard_,
            .prepare = [this] { return prepare(); },
            .webEngine = [this]() -> WebEngine& { return webEngine(); },
            .followAppearance = [this] { followAppearance(); },
            .receiveNotificationClick =
                [this](const auto& userInfo) { notificationCenter().receiveClick(userInfo); },
            .showPermissions = [this] { showPermissions(); },
            .saveSettings = [this] { saveSettings(); },
        },
        options_.identifier, options_.address);
}

GtkPlatform::~GtkPlatform()
{
    releaseSharedObjects();
}

int GtkPlatform::diagnose(const std::string& serviceOrigin)
{
    return Diagnosis::run({
        .serviceOrigin = serviceOrigin,
        .trust = trust_,
        .downloads = files_->downloadsDirectory(false)->path(),
        .renderer = rendererSafeguard_->choice(),
    });
}

std::optional<std::string> GtkPlatform::trust(
    std::vector<std::string> hosts, const std::string& path)
{
    trust_ = std::make_shared<HostTrust>(std::move(hosts), path);
    return trust_->problem();
}

GtkDispatchQueue& GtkPlatform::mainQueue()
{
    return *mainQueue_;
}

platform::UserDefaults& GtkPlatform::userDefaults()
{
    return *settings_;
}

platform::Bundle& GtkPlatform::mainBundle()
{
    return *bundle_;
}

platform::NSApplication& GtkPlatform::application()
{
    return *application_;
}

platform::URLCache& GtkPlatform::urlCache()
{
    if (!responseCache_)
        responseCache_ = std::make_unique<GtkURLCache>(standardPaths().cache / responsesName);
    return *responseCache_;
}

platform::FileManager& GtkPlatform::fileManager()
{
    return *files_;
}

platform::ProcessInfo& GtkPlatform::processInfo()
{
    return *machineInfo_;
}

platform::NSWorkspace& GtkPlatform::workspace()
{
    return *workspace_;
}

platform::NSScreen* GtkPlatform::mainScreen()
{
    const auto keyWindow = application_->keyWindow();
    auto* screen = keyWindow ? keyWindow->screen() : nullptr;
    return screen ? screen : GtkScreen::first();
}

std::shared_ptr<platform::NSView> GtkPlatform::makeView()
{
    return std::make_shared<PlainView>();
}

std::shared_ptr<platform::WKWebView> GtkPlatform::makeWebView(
    const platform::WKWebViewConfiguration& configuration)
{
    return std::make_shared<GtkWebView>(webEngine(), configuration);
}

std::shared_ptr<platform::WKWebView> GtkPlatform::makeWebView(
    const platform::NSRect& frame, const platform::WKWebViewConfiguration& configuration)
{
    return std::make_shared<OffscreenWebView>(webEngine(), frame.size, configuration);
}

std::shared_ptr<platform::NSWindow> GtkPlatform::makeOffscreenWindow(
    const platform::NSRect& frame, const std::shared_ptr<platform::NSView>& contentView)
{
    auto view = std::dynamic_pointer_cast<OffscreenWebView>(contentView);
    assert(view);
    return std::make_shared<OffscreenWindow>(frame, std::move(view));
}

std::shared_ptr<platform::CLLocationManager> GtkPlatform::makeLocationManager()
{
    return locationServices().makeManager();
}

std::shared_ptr<platform::MKLocalSearchCompleter> GtkPlatform::makeLocalSearchCompleter()
{
    if (!geocodingService_) {
        urlCache();
        geocodingService_ = std::make_shared<GeocodingService>(
            GeocodingService::Options{
                .address = options_.geocoder,
                .trust = trust_,
            },
            *responseCache_);
    }
    return std::make_shared<GtkLocalSearchCompleter>(geocodingService_);
}

std::shared_ptr<platform::MKLocalSearch> GtkPlatform::makeLocalSearch(
    const platform::MKLocalSearchRequest& request)
{
    return std::make_shared<GtkLocalSearch>(request, *mainQueue_);
}

std::shared_ptr<platform::SPUStandardUpdaterController> GtkPlatform::makeUpdaterController(
    bool startingUpdater)
{
    if (!updateSettings_)
        updateSettings_ = std::make_unique<GtkUserDefaults>(
            standardPaths().config / updateSettingsName, *mainQueue_, platform::NSLog);
    const auto bundleText = [this](const char* key) {
        return bundle_->stringForInfoDictionaryKey(key).value_or("");
    };
    std::error_code ignored; // a program that cannot be found has no owner
    auto updater = std::make_shared<GtkUpdaterController>(
        GtkUpdaterController::Options{
            .feed = options_.updateFeed,
            .publicKey = options_.updateKey,
            .trust = trust_,
            .version = bundleText("CFBundleVersion"),
            .displayVersion = bundleText("CFBundleShortVersionString"),
            .downloads = standardPaths().cache / updatesName,
            .executable = std::filesystem::read_symlink("/proc/self/exe", ignored),
        },
        GtkUpdaterController::Services{*mainQueue_, *updateSettings_, *workspace_});
    if (startingUpdater)
        updater->start();
    return updater;
}

void GtkPlatform::runModal(
    const platform::NSAlert& alert, std::function<void(int button)> completion)
{
    alerts_->run(alert, std::move(completion));
}

void GtkPlatform::showSharingServices(const platform::NSSharingServicePicker& picker,
    const platform::NSRect&, platform::NSView&, platform::NSRectEdge)
{
    sharing_ = std::make_unique<SharePanel>(picker.items);
}

void GtkPlatform::showOpenPanel(
    const platform::NSOpenPanel& panel, platform::NSOpenPanel::Completion completion)
{
    gtk::showOpenPanel(panel, std::move(completion));
}

void GtkPlatform::removeAllData(
    platform::WKWebsiteDataStore store, std::function<void()> completion)
{
    removeWebsiteData(webEngine().session(store).get(), std::move(completion));
}

void GtkPlatform::log(const std::string& line)
{
    g_log(programName, G_LOG_LEVEL_MESSAGE, "%s", line.c_str());
}

bool GtkPlatform::wantsRestart() const
{
    return rendererSafeguard_->wantsRestart();
}

WebEngine& GtkPlatform::webEngine()
{
    if (!webEngine_)
        webEngine_ = std::make_unique<WebEngine>(
            standardPaths(), trust_, usesGraphicsProcessor(rendererSafeguard_->choice()));
    return *webEngine_;
}

std::optional<std::string> GtkPlatform::prepare()
{
    rendererSafeguard_->begin();
    // The check waits for a process, which the engine's own start need not wait for.
    auto& engine = webEngine();
    auto check = std::async(std::launch::async, sandboxProblem);
    engine.prepare(expectedHost_);
    if (const auto missing = check.get()) {
        rendererSafeguard_->end();
        return "web pages cannot be shown without their sandbox: " + *missing;
    }
    engine.startContentProcess();
    return std::nullopt;
}

void GtkPlatform::followAppearance()
{
    appearance_ = std::make_unique<Appearance>(standardPaths().cache / appearanceName, *mainQueue_);
    appearance_->follow();
}

void GtkPlatform::saveSettings()
{
    settings_->flush();
    if (permissions_)
        permissions_->flush();
    if (updateSettings_)
        updateSettings_->flush();
}

GtkUserDefaults& GtkPlatform::permissions()
{
    if (!permissions_) {
        permissions_ = std::make_unique<GtkUserDefaults>(
            standardPaths().config / permissionsName, *mainQueue_, platform::NSLog);
    }
    return *permissions_;
}

LocationServices& GtkPlatform::locationServices()
{
    if (!locationServices_) {
        locationServices_ = std::make_unique<LocationServices>(
            LocationServices::Options{.identifier = options_.identifier}, *mainQueue_,
            permissions(), GtkLocationManager::askUser);
    }
    return *locationServices_;
}

platform::UNUserNotificationCenter& GtkPlatform::userNotificationCenter()
{
    return notificationCenter();
}

GtkUserNotificationCenter& GtkPlatform::notificationCenter()
{
    if (notificationCenter_)
        return *notificationCenter_;
    if (isSandboxed()) {
        notificationCenter_ = std::make_unique<GtkUserNotificationCenter>(*mainQueue_, nullptr,
            std::make_unique<PortalNotifications>(Application::notificationAction));
        return *notificationCenter_;
    }
    auto permission = std::make_unique<Permission>(*mainQueue_, permissions(),
        GtkUserNotificationCenter::permissionKey, GtkUserNotificationCenter::askUser);
    auto service = std::make_unique<DesktopNotifications>(
        options_.identifier, [this](const auto& userInfo, const auto& activationToken) {
            application_->allowToComeForward(activationToken);
            notificationCenter_->receiveClick(userInfo);
        });
    termination_ = platform::NotificationCenter::defaultCenter().addObserver(
        Application::willTerminateNotification, nullptr,
        [service = service.get()](const auto&) { service->leaveToAgent(); });
    notificationCenter_ = std::make_unique<GtkUserNotificationCenter>(
        *mainQueue_, std::move(permission), std::move(service));
    return *notificationCenter_;
}

void GtkPlatform::showPermissions()
{
    if (isSandboxed()) {
        const platform::NSAlert alert{
            .messageText = "Velmaro Online",
            .informativeText = "Your desktop asks what this application may do, and keeps the "
                               "answers in its settings.",
            .alertStyle = platform::NSAlert::Style::informational,
            .buttons = {"OK"},
        };
        return alert.runModal([](int) {});
    }
    const auto entry = [](const char* title, const char* explanation, Permission& permission) {
        return PermissionsView::Entry{title, explanation,
            {[&permission] { return permission.isAllowed().value_or(false); },
                [&permission](bool isAllowed) { permission.decide(isAllowed); }}};
    };
    permissionsPanel_ = std::make_unique<Panel>(Panel::Options{.title = "Permissions"},
        PermissionsView{{
            entry("Use your location", GtkLocationManager::explanation,
                locationServices().permission()),
            entry("Show notifications", GtkUserNotificationCenter::explanation,
                *notificationCenter().permission()),
        }});
}

} // namespace gtk
