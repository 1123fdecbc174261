#include "platform/gtk/webkit/WebEngine.h"

#include "platform/gtk/printing/PrintOperation.h"
#include "platform/gtk/webkit/WebsiteData.h"

#include <clocale>
#include <cstdlib>
#include <string_view>

namespace gtk {

namespace {

// At most this many off-screen pages load at once; after this many seconds a slow one no longer
// counts.
constexpr std::size_t offscreenCount = 2;
constexpr double offscreenPatience = 10;

// Pages would be told that the user's language is "C", which their scripts cannot make sense of.
void replaceLanguageOfNoCountry()
{
    const char* locale = std::setlocale(LC_MESSAGES, nullptr);
    const std::string_view name = locale ? locale : "C";
    if (name != "POSIX" && name != "C" && !name.starts_with("C."))
        return;
    const char* languages[] = {"en-US", nullptr};
    webkit_web_context_set_preferred_languages(webkit_web_context_get_default(), languages);
}

// A process without pages would be kept for the next one of the same site, with all that its closed
// pages have left behind.
void endProcessesWithTheirPages()
{
    webkit_web_context_set_cache_model(
        webkit_web_context_get_default(), WEBKIT_CACHE_MODEL_DOCUMENT_BROWSER);
}

bool asksForInspector()
{
    return std::getenv("WEBKIT_INSPECTOR_SERVER") || std::getenv("WEBKIT_INSPECTOR_HTTP_SERVER");
}

ObjectPointer<WebKitNetworkSession> makePersistentSession(const StandardPaths& paths)
{
    const auto data = paths.data / "web";
    const auto cache = paths.cache / "web";
    // Without the folders the session keeps in memory what it can.
    std::error_code error;
    std::filesystem::create_directories(data, error);
    removeForgottenHosts(data);

    ObjectPointer<WebKitNetworkSession> session(
        webkit_network_session_new(data.c_str(), cache.c_str()));
    webkit_cookie_manager_set_persistent_storage(
        webkit_network_session_get_cookie_manager(session.get()), (data / "cookies.sqlite").c_str(),
        WEBKIT_COOKIE_PERSISTENT_STORAGE_SQLITE);
    return session;
}

gboolean cancel(WebKitDownload* download)
{
    webkit_download_cancel(download);
    return TRUE;
}

// Cancels every download for which no web view chooses a destination: left alone, the engine would
// save it under a name of its own, and might replace a file of the user's. The handlers of the web
// views run first, and end the signal.
void refuseOtherDownloads(WebKitNetworkSession* session)
{
    g_signal_connect(session, "download-started",
        G_CALLBACK(+[](WebKitNetworkSession*, WebKitDownload* download) {
            g_signal_connect_after(download, "decide-destination", G_CALLBACK(cancel), nullptr);
        }),
        nullptr);
}

} // namespace

WebEngine::WebEngine(
    StandardPaths paths, std::shared_ptr<const HostTrust> trust, bool isAccelerated)
    : paths_(std::move(paths))
    , trust_(std::move(trust))
    , isAccelerated_(isAccelerated)
    , offscreenLoads_(std::make_shared<LoadLimiter>(offscreenCount, offscreenPatience))
    , printChoice_(std::make_shared<PrintChoice>())
{
}

WebEngine::~WebEngine() = default;

void WebEngine::prepare(const std::string& host)
{
    const auto session = this->session(platform::WKWebsiteDataStore::defaultDataStore);
    if (!host.empty())
        webkit_network_session_prefetch_dns(session.get(), host.c_str());
}

void WebEngine::startContentProcess()
{
    const auto session = this->session(platform::WKWebsiteDataStore::defaultDataStore);
    const auto settings = makeSettings({});
    spareView_ = retain(WEBKIT_WEB_VIEW(g_object_new(WEBKIT_TYPE_WEB_VIEW, "network-session",
        session.get(), "settings", settings.get(), nullptr)));
    webkit_web_view_load_uri(spareView_.get(), "about:blank"); // without a load there is no process
}

ObjectPointer<WebKitNetworkSession> WebEngine::session(platform::WKWebsiteDataStore store)
{
    const bool isPersistent = store == platform::WKWebsiteDataStore::defaultDataStore;
    if (isPersistent && session_)
        return retain(session_.get());

    replaceLanguageOfNoCountry();
    endProcessesWithTheirPages();
    auto session = isPersistent
        ? makePersistentSession(paths_)
        : ObjectPointer<WebKitNetworkSession>(webkit_network_session_new_ephemeral());
    trust_->apply(session.get());
    refuseOtherDownloads(session.get());
    if (isPersistent)
        session_ = retain(session.get());
    return session;
}

ObjectPointer<WebKitSettings> WebEngine::makeSettings(
    const platform::WKPreferences& preferences) const
{
    ObjectPointer<WebKitSettings> settings(webkit_settings_new());
    webkit_settings_set_javascript_can_open_windows_automatically(
        settings.get(), preferences.javaScriptCanOpenWindowsAutomatically);
    webkit_settings_set_enable_developer_extras(settings.get(), asksForInspector());
    if (!isAccelerated_)
        webkit_settings_set_hardware_acceleration_policy(
            settings.get(), WEBKIT_HARDWARE_ACCELERATION_POLICY_NEVER);
    return settings;
}

} // namespace gtk
