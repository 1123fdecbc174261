#include "platform/gtk/webkit/WebsiteData.h"

#include "platform/gtk/foundation/AsyncCallback.h"
#include "platform/gtk/foundation/ObjectPointer.h"

#include <glibmm/main.h>
#include <vector>

namespace gtk {

namespace {

namespace fs = std::filesystem;

// The engine writes an answer to its cache a second after it has come, also when the cache was
// cleared in between.
constexpr unsigned lateWrites = 3000; // milliseconds until the last of them

void clearCacheLater(WebKitWebsiteDataManager* manager)
{
    const std::shared_ptr<WebKitWebsiteDataManager> kept(retain(manager));
    Glib::signal_timeout().connect_once(
        [kept] {
            webkit_website_data_manager_clear(
                kept.get(), WEBKIT_WEBSITE_DATA_DISK_CACHE, 0, nullptr, nullptr, nullptr);
        },
        lateWrites);
}

std::vector<fs::path> foldersIn(const fs::path& folder)
{
    std::vector<fs::path> folders;
    std::error_code error; // means that there are no folders
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (entry->is_directory(error) && !entry->is_symlink(error))
            folders.push_back(entry->path());
    }
    return folders;
}

// Whether there is nothing but the file with the host's name, and empty folders.
bool isForgotten(const fs::path& host)
{
    std::error_code error;
    for (fs::recursive_directory_iterator entry(host, error), end; !error && entry != end;
         entry.increment(error)) {
        if (!entry->is_directory(error) && entry->path() != host / "origin")
            return false;
    }
    return !error;
}

} // namespace

void removeWebsiteData(WebKitNetworkSession* session, std::function<void()> completion)
{
    const auto callback =
        asyncCallback([completion = std::move(completion)](GObject* object, GAsyncResult* result) {
            auto* manager = WEBKIT_WEBSITE_DATA_MANAGER(object);
            webkit_website_data_manager_clear_finish(manager, result, nullptr);
            clearCacheLater(manager);
            completion();
        });
    webkit_website_data_manager_clear(webkit_network_session_get_website_data_manager(session),
        WEBKIT_WEBSITE_DATA_ALL, 0, nullptr, callback.function, callback.data);
}

void removeForgottenHosts(const fs::path& data)
{
    std::error_code error;
    for (const auto& page : foldersIn(data / "storage")) {
        for (const auto& host : foldersIn(page)) { // the page's own, or one that it has frames of
            if (isForgotten(host))
                fs::remove_all(host, error);
        }
        fs::remove(page, error); // when nothing is left in it
    }
}

} // namespace gtk
