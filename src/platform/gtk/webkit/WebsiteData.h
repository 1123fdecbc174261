#pragma once

#include <filesystem>
#include <functional>
#include <webkit/webkit.h>

namespace gtk {

// Removes all that pages have left in the session, in memory and on the disk, but for the names of
// hosts that have stored something: the engine keeps those while one of their pages is open.
// `completion` is called when that has been done. What the engine writes to its cache after that is
// removed within seconds.
void removeWebsiteData(WebKitNetworkSession* session, std::function<void()> completion);

// Removes the names of hosts below the engine's folder for data that have nothing stored any more.
// Only while no engine uses the folder.
void removeForgottenHosts(const std::filesystem::path& data);

} // namespace gtk
