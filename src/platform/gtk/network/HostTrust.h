#pragma once

#include "platform/gtk/foundation/ObjectPointer.h"
#include "platform/gtk/network/HostCertificate.h"

#include <optional>
#include <webkit/webkit.h>

namespace gtk {

// Makes network sessions trust the user's certificate, for its hosts and no others.
class HostTrust {
public:
    // A file that holds no certificate is told in one line of the log, and nothing is trusted.
    explicit HostTrust(const std::optional<HostCertificate>& certificate);

    void apply(WebKitNetworkSession* session) const;

    // Whether a certificate that was refused at `address` was issued by the user's, and for a
    // host of theirs.
    bool vouchesFor(GTlsCertificate* refused, const char* address) const;

    // Whether a certificate that the session has refused for the page at `address` was issued by
    // the user's. The session accepts it from then on.
    bool accept(WebKitNetworkSession* session, GTlsCertificate* refused, const char* address) const;

private:
    const HostCertificate trusted_;
    ObjectPointer<GTlsCertificate> certificate_; // null when there is none
};

} // namespace gtk
