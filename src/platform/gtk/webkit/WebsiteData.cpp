#include "platform/gtk/webkit/WebsiteData.h"

#include <memory>
#include <vector>

namespace gtk {

namespace {

namespace fs = std::filesystem;

// The engine writes an answer to its cache a second after it has come, also when the cache was
// cleared in between.
constexpr guint lateWrites = 3000; // milliseconds until the last of them

void clearCacheLater(WebKitWebsiteDataManager* manager)
{
    const auto clear = +[](gpointer manager) -> gboolean {
        webkit_website_data_manager_clear(WEBKIT_WEBSITE_DATA_MANAGER(manager),
            WEBKIT_WEBSITE_DATA_DISK_CACHE, 0, nullptr, nullptr, nullptr);
        return G_SOURCE_REMOVE;
    };
    g_timeout_add_full(
        G_PRIORITY_DEFAULT, lateWrites, clear, g_object_ref(manager), g_object_unref);
}

std::vector<fs::path> foldersIn(const fs::path& folder)
{
    std::vector<fs::path> folders;
    std::error_code error; // means that there are none
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (entry->is_directory(error) && !entry->is_symlink(error))
            folders.push_back(entry->path());
    }
    return folders;
}

// Nothing but the file with the host's name, and folders that are empty.
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
    const auto removed = +[](GObject* object, GAsyncResult* result, gpointer data) {
        const std::unique_ptr<std::function<void()>> completion(
            static_cast<std::function<void()>*>(data));
        auto* manager = WEBKIT_WEBSITE_DATA_MANAGER(object);
        webkit_website_data_manager_clear_finish(manager, result, nullptr);
        clearCacheLater(manager);
        (*completion)();
    };
    webkit_website_data_manager_clear(webkit_network_session_get_website_data_manager(session),
        WEBKIT_WEBSITE_DATA_ALL, 0, nullptr, removed,
        new std::function<void()>(std::move(completion)));
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
