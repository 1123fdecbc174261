#pragma once

#include "platform/gtk/foundation/ObjectPointer.h"

#include <optional>
#include <string>
#include <vector>
#include <webkit/webkit.h>

namespace gtk {

// Which certificates are trusted beside those that the system trusts: one that the user has named,
// and those that it has issued, for some hosts and no others.
class HostTrust {
public:
    // Trusts what the system trusts.
    HostTrust() = default;

    // Reads the user's certificate, or that of the authority that issued it, from the PEM file at
    // `path`. A file that holds no certificate makes no host trusted.
    HostTrust(std::vector<std::string> hosts, const std::string& path);

    // Why the file cannot be used; absent if it can.
    const std::optional<std::string>& problem() const { return problem_; }

    void apply(WebKitNetworkSession* session) const;

    // Whether a certificate that was refused for `host` is the user's or was issued by it, and
    // `host` is one of the user's.
    bool vouchesFor(GTlsCertificate* refused, const std::string& host) const;

    // Makes `session` accept the certificate that it has refused for the page at `address`, if this
    // vouches for it. Returns whether it does.
    bool accept(WebKitNetworkSession* session, GTlsCertificate* refused, const char* address) const;

private:
    std::vector<std::string> hosts_; // in lower case, as the engine writes them
    ObjectPointer<GTlsCertificate> certificate_; // null when there is none
    ObjectPointer<GTlsDatabase> authorities_; // null when there is none
    std::optional<std::string> problem_;
};

} // namespace gtk
