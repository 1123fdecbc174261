#include "platform/gtk/network/HttpRequest.h"

#include "platform/gtk/foundation/AsyncCallback.h"

#include <glibmm/main.h>

namespace gtk {

namespace {
constexpr gsize pieceSize = 65'536; // bytes
}

ObjectPointer<SoupSession> HttpRequest::makeSession(unsigned secondsToWait)
{
    return ObjectPointer<SoupSession>(soup_session_new_with_options(
        "timeout", secondsToWait, "user-agent", "VelmaroOnline/" VELMARO_VERSION, nullptr));
}

HttpRequest::HttpRequest(SoupSession* session, Options options, Handlers handlers)
    : options_(std::move(options))
    , handlers_(std::move(handlers))
    , session_(retain(session))
    , message_(soup_message_new(SOUP_METHOD_GET, options_.address.c_str()))
{
    if (!isAllowed()) {
        const auto context = Glib::MainContext::get_thread_default();
        context->signal_idle().connect_once(
            lifetime_.guard([this] { finish(Failure{Failure::Reason::badAddress}); }));
        return;
    }
    g_signal_connect(message_.get(), "accept-certificate", G_CALLBACK(acceptCertificate), this);
    g_signal_connect(message_.get(), "restarted", G_CALLBACK(redirected), this);
    const auto callback =
        asyncCallback(lifetime_.guard([this](GObject*, GAsyncResult* result) { begin(result); }));
    soup_session_send_async(session_.get(), message_.get(), G_PRIORITY_DEFAULT, cancellable_.get(),
        callback.function, callback.data);
}

HttpRequest::~HttpRequest()
{
    g_cancellable_cancel(cancellable_.get());
    if (message_)
        g_signal_handlers_disconnect_by_data(message_.get(), this);
}

unsigned HttpRequest::status() const
{
    return message_ ? soup_message_get_status(message_.get()) : 0;
}

GTlsCertificate* HttpRequest::certificate() const
{
    return message_ ? soup_message_get_tls_peer_certificate(message_.get()) : nullptr;
}

gboolean HttpRequest::acceptCertificate(SoupMessage* message, GTlsCertificate* certificate,
    GTlsCertificateFlags flaws, HttpRequest* self)
{
    const bool isTrusted = self->options_.trust->vouchesFor(
        certificate, g_uri_get_host(soup_message_get_uri(message)));
    self->certificateFlaws_ = isTrusted ? G_TLS_CERTIFICATE_NO_FLAGS : flaws;
    return isTrusted;
}

void HttpRequest::redirected(SoupMessage*, HttpRequest* self)
{
    if (!self->isAllowed())
        g_cancellable_cancel(self->cancellable_.get());
}

// Whether the message may go to its address, which redirects change.
bool HttpRequest::isAllowed() const
{
    if (!message_)
        return false;
    const char* scheme = g_uri_get_scheme(soup_message_get_uri(message_.get()));
    return !options_.isSecureOnly || std::string_view(scheme) == "https";
}

void HttpRequest::begin(GAsyncResult* result)
{
    using enum Failure::Reason;
    g_autoptr(GError) error = nullptr;
    stream_.reset(soup_session_send_finish(session_.get(), result, &error));
    if (!isAllowed())
        finish(Failure{badAddress});
    else if (!stream_)
        finish(Failure{noAnswer, error->message});
    else if (!SOUP_STATUS_IS_SUCCESSFUL(status()))
        finish(Failure{badStatus, std::to_string(status())});
    else
        readOn();
}

void HttpRequest::readOn()
{
    const auto callback =
        asyncCallback(lifetime_.guard([this](GObject*, GAsyncResult* result) { read(result); }));
    g_input_stream_read_bytes_async(stream_.get(), pieceSize, G_PRIORITY_DEFAULT,
        cancellable_.get(), callback.function, callback.data);
}

void HttpRequest::read(GAsyncResult* result)
{
    using enum Failure::Reason;
    g_autoptr(GError) error = nullptr;
    g_autoptr(GBytes) bytes = g_input_stream_read_bytes_finish(stream_.get(), result, &error);
    if (!bytes)
        return finish(Failure{brokenOff, error->message});
    gsize size = 0;
    const auto* start = static_cast<const char*>(g_bytes_get_data(bytes, &size));
    received_ += size;
    if (size == 0)
        finish(std::nullopt);
    else if (received_ > options_.mostBytes)
        finish(Failure{tooLong});
    else if (!handlers_.receive({start, size}))
        finish(Failure{refused});
    else
        readOn();
}

void HttpRequest::finish(std::optional<Failure> failure)
{
    stream_.reset();
    const auto tell = handlers_.finish; // which may destroy this
    tell(std::move(failure));
}

} // namespace gtk
