#pragma once

#include "platform/foundation/NSError.h"
#include "platform/gtk/network/HostTrust.h"

#include <functional>
#include <libsoup/soup.h>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace gtk {

// One answer over https, piece by piece. Redirects are followed, but never to an address that is
// not https.
class SecureDownload {
public:
    struct Handlers {
        // The next bytes. May return a reason why no more of them are wanted.
        std::function<std::optional<platform::NSError>(std::string_view bytes)> receive;

        // Called once, at the end, with the reason when the answer is not complete.
        std::function<void(std::optional<platform::NSError>)> finish;
    };

    // Begins at once; handlers are called later. `trust` must outlive this.
    SecureDownload(const std::string& address, const std::string& userAgent, const HostTrust& trust,
        Handlers handlers);

    // Takes the question back when it has not been answered; no handler is called any more.
    ~SecureDownload();

    SecureDownload(const SecureDownload&) = delete;
    SecureDownload& operator=(const SecureDownload&) = delete;

    static platform::NSError insecureAddress();

private:
    struct Transfer;

    static void begun(GObject* session, GAsyncResult* result, gpointer data);
    static void read(GObject* stream, GAsyncResult* result, gpointer data);
    static void redirected(SoupMessage* message, gpointer transfer);
    static gboolean acceptCertificate(
        SoupMessage* message, GTlsCertificate* refused, GTlsCertificateFlags, gpointer trust);

    std::shared_ptr<Transfer> transfer_;
};

} // namespace gtk
