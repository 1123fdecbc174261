#include "platform/gtk/webkit/WebsiteData.h"

#include <memory>

namespace gtk {

void removeWebsiteData(WebKitNetworkSession* session, std::function<void()> completion)
{
    const auto removed = +[](GObject* manager, GAsyncResult* result, gpointer data) {
        const std::unique_ptr<std::function<void()>> completion(
            static_cast<std::function<void()>*>(data));
        webkit_website_data_manager_clear_finish(
            WEBKIT_WEBSITE_DATA_MANAGER(manager), result, nullptr);
        (*completion)();
    };
    webkit_website_data_manager_clear(webkit_network_session_get_website_data_manager(session),
        WEBKIT_WEBSITE_DATA_ALL, 0, nullptr, removed,
        new std::function<void()>(std::move(completion)));
}

} // namespace gtk
