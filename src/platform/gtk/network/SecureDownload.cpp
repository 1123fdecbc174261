#include "platform/gtk/network/SecureDownload.h"

#include <glibmm/main.h>

namespace gtk {

namespace {

constexpr gsize pieceSize = 65'536; // bytes
constexpr guint secondsToWait = 30; // while nothing at all comes

bool isSecure(GUri* address)
{
    return g_strcmp0(g_uri_get_scheme(address), "https") == 0;
}

} // namespace

// Lives until the engine has called back for the last time.
struct SecureDownload::Transfer {
    using Self = std::shared_ptr<Transfer>;

    // What the engine carries along with a call.
    static gpointer carry(const Self& self) { return new Self(self); }
    static Self uncarry(gpointer data) { return *std::unique_ptr<Self>(static_cast<Self*>(data)); }

    void end(std::optional<platform::NSError> failure)
    {
        if (isDropped)
            return;
        isDropped = true;
        const auto finish = std::move(handlers.finish); // which may drop the download
        finish(std::move(failure));
    }

    void readOn(const Self& self)
    {
        g_input_stream_read_bytes_async(stream.get(), pieceSize, G_PRIORITY_DEFAULT,
            cancellable.get(), SecureDownload::read, carry(self));
    }

    Handlers handlers;
    ObjectPointer<SoupSession> session;
    ObjectPointer<SoupMessage> message; // null for an address that is none
    ObjectPointer<GCancellable> cancellable{g_cancellable_new()};
    ObjectPointer<GInputStream> stream = nullptr;
    bool leadsElsewhere = false; // to an address that is not https
    bool isDropped = false;
};

SecureDownload::SecureDownload(const std::string& address, const std::string& userAgent,
    const HostTrust& trust, Handlers handlers)
    : transfer_(std::make_shared<Transfer>(Transfer{
        .handlers = std::move(handlers),
        .session = ObjectPointer<SoupSession>(soup_session_new_with_options(
            "timeout", secondsToWait, "user-agent", userAgent.c_str(), nullptr)),
        .message = ObjectPointer<SoupMessage>(soup_message_new(SOUP_METHOD_GET, address.c_str())),
    }))
{
    auto* message = transfer_->message.get();
    if (!message || !isSecure(soup_message_get_uri(message))) {
        Glib::signal_idle().connect_once(
            [transfer = transfer_] { transfer->end(insecureAddress()); });
        return;
    }
    // Lengths and signatures are those of the bytes as they come.
    soup_message_disable_feature(message, SOUP_TYPE_CONTENT_DECODER);
    g_signal_connect(message, "accept-certificate", G_CALLBACK(acceptCertificate),
        const_cast<HostTrust*>(&trust));
    g_signal_connect(message, "restarted", G_CALLBACK(redirected), transfer_.get());
    soup_session_send_async(transfer_->session.get(), message, G_PRIORITY_DEFAULT,
        transfer_->cancellable.get(), begun, Transfer::carry(transfer_));
}

SecureDownload::~SecureDownload()
{
    transfer_->isDropped = true;
    g_cancellable_cancel(transfer_->cancellable.get());
    if (!transfer_->message)
        return;
    for (const auto handler : {G_CALLBACK(acceptCertificate), G_CALLBACK(redirected)})
        g_signal_handlers_disconnect_matched(transfer_->message.get(), G_SIGNAL_MATCH_FUNC, 0, 0,
            nullptr, reinterpret_cast<gpointer>(handler), nullptr);
}

platform::NSError SecureDownload::insecureAddress()
{
    return {"The update server uses an address that is not secure (https)."};
}

void SecureDownload::begun(GObject* session, GAsyncResult* result, gpointer data)
{
    const auto transfer = Transfer::uncarry(data);
    g_autoptr(GError) error = nullptr;
    transfer->stream.reset(soup_session_send_finish(SOUP_SESSION(session), result, &error));
    if (transfer->leadsElsewhere)
        return transfer->end(insecureAddress());
    if (!transfer->stream)
        return transfer->end(platform::NSError{
            std::string("The update server cannot be reached: ") + error->message + "."});
    const auto status = soup_message_get_status(transfer->message.get());
    if (!SOUP_STATUS_IS_SUCCESSFUL(status))
        return transfer->end(platform::NSError{
            "The update server has nothing at this address (" + std::to_string(status) + ")."});
    transfer->readOn(transfer);
}

void SecureDownload::read(GObject* stream, GAsyncResult* result, gpointer data)
{
    const auto transfer = Transfer::uncarry(data);
    g_autoptr(GError) error = nullptr;
    g_autoptr(GBytes) bytes =
        g_input_stream_read_bytes_finish(G_INPUT_STREAM(stream), result, &error);
    if (!bytes)
        return transfer->end(
            platform::NSError{std::string("The download broke off: ") + error->message + "."});
    gsize size = 0;
    const auto* start = static_cast<const char*>(g_bytes_get_data(bytes, &size));
    if (transfer->isDropped)
        return;
    if (size == 0)
        return transfer->end(std::nullopt);
    if (auto refusal = transfer->handlers.receive({start, size})) {
        g_cancellable_cancel(transfer->cancellable.get());
        return transfer->end(std::move(refusal));
    }
    if (!transfer->isDropped)
        transfer->readOn(transfer);
}

void SecureDownload::redirected(SoupMessage* message, gpointer data)
{
    auto& transfer = *static_cast<Transfer*>(data);
    if (isSecure(soup_message_get_uri(message)))
        return;
    transfer.leadsElsewhere = true;
    g_cancellable_cancel(transfer.cancellable.get());
}

gboolean SecureDownload::acceptCertificate(
    SoupMessage* message, GTlsCertificate* refused, GTlsCertificateFlags, gpointer trust)
{
    const char* host = g_uri_get_host(soup_message_get_uri(message));
    return static_cast<const HostTrust*>(trust)->vouchesFor(refused, host);
}

} // namespace gtk
