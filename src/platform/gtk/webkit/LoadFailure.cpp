#include "platform/gtk/webkit/LoadFailure.h"

#include <gio/gio.h>
#include <string_view>
#include <webkit/webkit.h>

namespace gtk {

namespace {

struct Wording {
    LoadFailure::Reason reason;
    const char* title;
    const char* explanation;
};

using Reason = LoadFailure::Reason;

constexpr Wording wordings[] = {
    {Reason::offline, "You Are Offline",
        "This computer has no network connection. "
        "The page loads by itself as soon as there is one."},
    {Reason::hostNotFound, "Page Unavailable",
        "The server of this page could not be found. "
        "The connection to the Internet may be down, or the address may be wrong."},
    {Reason::connection, "Page Unavailable",
        "The server could not be reached, or the connection broke off. "
        "The page is tried again from time to time."},
    {Reason::certificate, "Connection Not Secure",
        "The server could not prove that it is the one it should be. Nothing has been sent to it."},
    {Reason::timeout, "Page Unavailable",
        "The server took too long to answer. The page is tried again from time to time."},
    {Reason::noPage, "Page Unavailable", "There is nothing to show at this address."},
    {Reason::processDied, "Page Stopped",
        "Something in this page went wrong twice in a short time, and it has been stopped."},
};

const Wording& wordingOf(Reason reason)
{
    for (const auto& wording : wordings) {
        if (wording.reason == reason)
            return wording;
    }
    return wordings[0];
}

// A host that is reached without any network.
bool isOwnComputer(const std::string& address)
{
    g_autoptr(GUri) uri = g_uri_parse(address.c_str(), G_URI_FLAGS_NONE, nullptr);
    const char* name = uri ? g_uri_get_host(uri) : nullptr;
    const std::string_view host = name ? name : "";
    return host == "localhost" || host.ends_with(".localhost") || host.starts_with("127.")
        || host == "::1";
}

bool isOffline()
{
    return !g_network_monitor_get_network_available(g_network_monitor_get_default());
}

} // namespace

const char* LoadFailure::title() const
{
    return wordingOf(reason).title;
}

const char* LoadFailure::explanation() const
{
    return wordingOf(reason).explanation;
}

std::optional<Reason> failureReason(const GError& error, const std::string& address)
{
    if (g_error_matches(&error, WEBKIT_NETWORK_ERROR, WEBKIT_NETWORK_ERROR_CANCELLED)
        || g_error_matches(&error, WEBKIT_POLICY_ERROR,
            WEBKIT_POLICY_ERROR_FRAME_LOAD_INTERRUPTED_BY_POLICY_CHANGE))
        return std::nullopt;
    if (error.domain == WEBKIT_POLICY_ERROR)
        return Reason::noPage;
    if (isOffline() && !isOwnComputer(address))
        return Reason::offline;
    if (error.domain == G_RESOLVER_ERROR)
        return Reason::hostNotFound;
    if (g_error_matches(&error, G_IO_ERROR, G_IO_ERROR_TIMED_OUT))
        return Reason::timeout;
    return Reason::connection;
}

} // namespace gtk
