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

// The engine writes hosts in lower case.
HostCertificate forEngine(HostCertificate certificate)
{
    for (auto& host : certificate.hosts) {
        g_autofree char* lower = g_ascii_strdown(host.c_str(), -1);
        host = lower;
    }
    return certificate;
}

} // namespace

HostTrust::HostTrust(const std::optional<HostCertificate>& certificate)
    : trusted_(forEngine(certificate.value_or(HostCertificate())))
{
    if (!certificate)
        return;
    g_autoptr(GError) error = nullptr;
    certificate_.reset(g_tls_certificate_new_from_file(trusted_.path.c_str(), &error));
    if (error)
        g_message("No certificate in %s: %s", trusted_.path.c_str(), error->message);
}

void HostTrust::apply(WebKitNetworkSession* session) const
{
    webkit_network_session_set_tls_errors_policy(session, WEBKIT_TLS_ERRORS_POLICY_FAIL);
    if (!certificate_)
        return;
    for (const auto& host : trusted_.hosts)
        webkit_network_session_allow_tls_certificate_for_host(
            session, certificate_.get(), host.c_str());
}

bool HostTrust::vouchesFor(GTlsCertificate* refused, const char* address) const
{
    const auto host = hostOf(address);
    if (!certificate_ || std::ranges::find(trusted_.hosts, host) == trusted_.hosts.end())
        return false;

    const ObjectPointer<GTlsDatabase> authorities(
        g_tls_file_database_new(trusted_.path.c_str(), nullptr));
    if (!authorities)
        return false;
    const ObjectPointer<GSocketConnectable> identity(g_network_address_new(host.c_str(), 443));
    const auto flaws = g_tls_database_verify_chain(authorities.get(), refused,
        G_TLS_DATABASE_PURPOSE_AUTHENTICATE_SERVER, identity.get(), nullptr,
        G_TLS_DATABASE_VERIFY_NONE, nullptr, nullptr);
    return flaws == G_TLS_CERTIFICATE_NO_FLAGS;
}

bool HostTrust::accept(
    WebKitNetworkSession* session, GTlsCertificate* refused, const char* address) const
{
    if (!vouchesFor(refused, address))
        return false;
    webkit_network_session_allow_tls_certificate_for_host(
        session, refused, hostOf(address).c_str());
    return true;
}

} // namespace gtk
