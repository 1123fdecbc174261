#pragma once

#include "platform/appkit/Geometry.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <typeindex>
#include <unordered_map>
#include <vector>

namespace platform {

class Bundle;
class CLLocationManager;
class DispatchQueue;
class FileManager;
class MKLocalSearch;
class MKLocalSearchCompleter;
class NSApplication;
class NSScreen;
class NSView;
class NSWindow;
class NSWorkspace;
class ProcessInfo;
class SPUStandardUpdaterController;
class UNUserNotificationCenter;
class URL;
class URLCache;
class UserDefaults;
class WKWebView;
struct MKLocalSearchRequest;
struct NSAlert;
struct NSSharingServicePicker;
struct NSOpenPanel;
struct WKWebViewConfiguration;
enum class WKWebsiteDataStore;

// Everything the application asks of the desktop it runs on. One platform is current at a time: the
// real one in the program, a fresh simulated one in each test. Services keep their platform names
// and are reached through them (`UserDefaults::standard()`), rarely through this class.
//
// Main thread only. No operation throws.
class Platform {
public:
    // The platform made last and not yet destroyed. There must be one.
    static Platform& current();

    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;
    virtual ~Platform();

    virtual DispatchQueue& mainQueue() = 0;
    virtual UserDefaults& userDefaults() = 0;
    virtual Bundle& mainBundle() = 0;
    virtual NSApplication& application() = 0;
    virtual URLCache& urlCache() = 0;
    virtual FileManager& fileManager() = 0;
    virtual ProcessInfo& processInfo() = 0;
    virtual NSWorkspace& workspace() = 0;
    virtual UNUserNotificationCenter& userNotificationCenter() = 0;

    // The screen that holds the key window, else the first one; null on a machine without a screen.
    virtual NSScreen* mainScreen() = 0;

    // A plain view with nothing in it.
    virtual std::shared_ptr<NSView> makeView() = 0;

    // A web view that is configured and empty. It must be placed in a window to be seen.
    virtual std::shared_ptr<WKWebView> makeWebView(const WKWebViewConfiguration&) = 0;

    // One that is laid out at the size of `frame` and shown nowhere: a page that is only printed or
    // made into a document. A load that fails ends there: nothing stands in for the page and
    // nothing is tried again. Several do their work a few at a time, so that the user's pages stay
    // quick.
    virtual std::shared_ptr<WKWebView> makeWebView(
        const NSRect& frame, const WKWebViewConfiguration&) = 0;

    // A borderless window around a view from `makeWebView` with a frame, until it is closed. It is
    // for no screen and no eye: not among the application's windows, and never key.
    virtual std::shared_ptr<NSWindow> makeOffscreenWindow(
        const NSRect& frame, const std::shared_ptr<NSView>& contentView) = 0;

    // One way to the location service, for its owner alone.
    virtual std::shared_ptr<CLLocationManager> makeLocationManager() = 0;

    virtual std::shared_ptr<MKLocalSearchCompleter> makeLocalSearchCompleter() = 0;

    // A search that has yet to be started.
    virtual std::shared_ptr<MKLocalSearch> makeLocalSearch(const MKLocalSearchRequest&) = 0;

    // See `SPUStandardUpdaterController::make`.
    virtual std::shared_ptr<SPUStandardUpdaterController> makeUpdaterController(
        bool startingUpdater) = 0;

    // See `NSAlert::runModal`.
    virtual void runModal(const NSAlert& alert, std::function<void(int button)> completion) = 0;

    // See `NSSharingServicePicker::show`.
    virtual void showSharingServices(const NSSharingServicePicker& picker, const NSRect& rectangle,
        NSView& view, NSRectEdge preferredEdge) = 0;

    // See `NSOpenPanel::begin`.
    virtual void showOpenPanel(const NSOpenPanel& panel,
        std::function<void(const std::optional<std::vector<URL>>& files)> completion) = 0;

    // See `removeAllData`.
    virtual void removeAllData(WKWebsiteDataStore store, std::function<void()> completion) = 0;

    // Writes one line to the system log.
    virtual void log(const std::string& line) = 0;

    // The one T of this platform: made on first use, gone with the platform. It replaces static
    // state, so that every test starts clean.
    template <class T> T& shared()
    {
        auto& entry = shared_[typeid(T)];
        if (!entry)
            entry = std::make_shared<T>();
        return *static_cast<T*>(entry.get());
    }

protected:
    Platform();

    // For platforms whose own members are used by shared objects on their way out.
    void releaseSharedObjects() { shared_.clear(); }

private:
    Platform* previous_ = nullptr;
    std::unordered_map<std::type_index, std::shared_ptr<void>> shared_;
};

// Writes one line to the system log.
void NSLog(const std::string& line);

} // namespace platform
