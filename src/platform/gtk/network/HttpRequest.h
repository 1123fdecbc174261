#pragma once

#include "platform/foundation/Lifetime.h"
#include "platform/gtk/network/HostTrust.h"

#include <cstdint>
#include <functional>
#include <libsoup/soup.h>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace gtk {

// Asks a server for something over HTTP, following redirects, and hands the answer on piece by
// piece. The handlers are called in the thread's main context.
class HttpRequest {
public:
    struct Options {
        std::string address;
        std::uint64_t mostBytes = UINT64_MAX; // of the answer
        bool isSecureOnly = false; // neither the address nor a redirect may leave https
        std::shared_ptr<const HostTrust> trust; // never null
    };

    // Why an answer is not complete.
    struct Failure {
        enum class Reason {
            badAddress, // it is invalid, or not https where it has to be
            noAnswer,
            badStatus,
            brokenOff,
            tooLong,
            refused, // by `receive`
        };

        Reason reason;
        std::string detail = {}; // the system's words, or the status
    };

    struct Handlers {
        // Takes the next bytes of a successful answer, and returns whether more are wanted. Must
        // not destroy the request.
        std::function<bool(std::string_view bytes)> receive;

        // Called once, at the end. May destroy the request.
        std::function<void(std::optional<Failure>)> finish;
    };

    // Returns a session in the name of this program. It keeps connections for later requests, and
    // gives a server up that is silent for so long.
    static ObjectPointer<SoupSession> makeSession(unsigned secondsToWait);

    // Begins at once; the handlers are called later.
    HttpRequest(SoupSession* session, Options options, Handlers handlers);

    // Takes the question back if it has not been answered; no handler is called any more.
    ~HttpRequest();

    HttpRequest(const HttpRequest&) = delete;
    HttpRequest& operator=(const HttpRequest&) = delete;

    // Of the answer; 0 before there is one.
    unsigned status() const;

    // What the server has shown, trusted or not; null before, and from one that shows nothing.
    GTlsCertificate* certificate() const;

    // What is wrong with the certificate; nothing if it is trusted.
    GTlsCertificateFlags certificateFlaws() const { return certificateFlaws_; }

private:
    static gboolean acceptCertificate(SoupMessage* message, GTlsCertificate* certificate,
        GTlsCertificateFlags flaws, HttpRequest* self);
    static void redirected(SoupMessage*, HttpRequest* self);

    bool isAllowed() const;
    void begin(GAsyncResult* result);
    void readOn();
    void read(GAsyncResult* result);
    void finish(std::optional<Failure> failure);

    const Options options_;
    const Handlers handlers_;
    const ObjectPointer<SoupSession> session_;
    const ObjectPointer<SoupMessage> message_; // null if the address is invalid
    const ObjectPointer<GCancellable> cancellable_{g_cancellable_new()};
    ObjectPointer<GInputStream> stream_; // null before the answer, and after it
    GTlsCertificateFlags certificateFlaws_ = G_TLS_CERTIFICATE_NO_FLAGS;
    std::uint64_t received_ = 0; // bytes
    platform::Lifetime lifetime_;
};

} // namespace gtk
