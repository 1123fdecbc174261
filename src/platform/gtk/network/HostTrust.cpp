#include "platform/gtk/network/HostTrust.h"

#include <algorithm>

namespace gtk {

namespace {

std::string hostOf(const char* address)
{
    g_autoptr(GUri) uri = g_uri_parse(address, G_URI_FLAGS_NONE, nullptr);
    const char* host = uri ? g_uri_get_host(uri) : nullptr;
    return host ? host : "";
}

} // namespace

HostTrust::HostTrust(std::vector<std::string> hosts, const std::string& path)
    : hosts_(std::move(hosts))
{
    for (auto& host : hosts_) {
        g_autofree char* lower = g_ascii_strdown(host.c_str(), -1);
        host = lower;
    }
    g_autofree char* file = g_canonicalize_filename(path.c_str(), nullptr);
    g_autoptr(GError) error = nullptr;
    certificate_.reset(g_tls_certificate_new_from_file(file, &error));
    if (certificate_)
        authorities_.reset(g_tls_file_database_new(file, &error));
    if (error)
        problem_ = error->message;
}

void HostTrust::apply(WebKitNetworkSession* session) const
{
    webkit_network_session_set_tls_errors_policy(session, WEBKIT_TLS_ERRORS_POLICY_FAIL);
    if (!certificate_)
        return;
    for (const auto& host : hosts_)
        webkit_network_session_allow_tls_certificate_for_host(
            session, certificate_.get(), host.c_str());
}

bool HostTrust::vouchesFor(GTlsCertificate* refused, const std::string& host) const
{
    if (!authorities_ || std::ranges::find(hosts_, host) == hosts_.end())
        return false;
    const ObjectPointer<GSocketConnectable> identity(g_network_address_new(host.c_str(), 443));
    const auto flaws = g_tls_database_verify_chain(authorities_.get(), refused,
        G_TLS_DATABASE_PURPOSE_AUTHENTICATE_SERVER, identity.get(), nullptr,
        G_TLS_DATABASE_VERIFY_NONE, nullptr, nullptr);
    return flaws == G_TLS_CERTIFICATE_NO_FLAGS;
}

bool HostTrust::accept(
    WebKitNetworkSession* session, GTlsCertificate* refused, const char* address) const
{
    const auto host = hostOf(address);
    if (!vouchesFor(refused, host))
        return false;
    webkit_network_session_allow_tls_certificate_for_host(session, refused, host.c_str());
    return true;
}

} // namespace gtk
