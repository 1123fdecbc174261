#include "http/DemoServer.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace demo {

namespace {

std::string lowerCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
        [](unsigned char character) { return static_cast<char>(std::tolower(character)); });
    return text;
}

std::runtime_error runtimeError(GError* error)
{
    std::runtime_error result(error->message);
    g_error_free(error);
    return result;
}

Request requestOf(SoupServerMessage* message, const char* path, int port)
{
    GUri* address = soup_server_message_get_uri(message);
    const char* host = g_uri_get_host(address);
    const char* query = g_uri_get_query(address);
    Request request{
        .method = soup_server_message_get_method(message),
        .host = lowerCase(host ? host : ""),
        .port = port,
        .path = path,
        .query = query ? query : "",
    };
    soup_message_headers_foreach(
        soup_server_message_get_request_headers(message),
        [](const char* name, const char* value, gpointer headers) {
            auto& known = *static_cast<std::map<std::string, std::string>*>(headers);
            auto& text = known[lowerCase(name)];
            text += (text.empty() ? "" : ", ") + std::string(value);
        },
        &request.headers);
    if (const auto* body = soup_server_message_get_request_body(message); body && body->length > 0)
        request.body.assign(body->data, static_cast<std::size_t>(body->length));
    return request;
}

/// Bytes on their way over a connection that the library has let go of.
struct VerbatimWrite {
    GIOStream* connection;
    std::string bytes;
    bool closes;
    char received = 0; ///< Whatever the client says while there is silence.

    ~VerbatimWrite()
    {
        g_io_stream_close_async(connection, G_PRIORITY_DEFAULT, nullptr, nullptr, nullptr);
        g_object_unref(connection);
    }
};

/// Keeps the connection, and the write, until the client ends it.
void stayOpen(VerbatimWrite* write)
{
    const auto end = [](GObject* stream, GAsyncResult* result, gpointer data) {
        g_input_stream_read_finish(G_INPUT_STREAM(stream), result, nullptr);
        delete static_cast<VerbatimWrite*>(data);
    };
    g_input_stream_read_async(g_io_stream_get_input_stream(write->connection), &write->received, 1,
        G_PRIORITY_DEFAULT, nullptr, end, write);
}

void sendVerbatim(SoupServerMessage* message, std::string bytes, bool closes)
{
    auto* write =
        new VerbatimWrite{soup_server_message_steal_connection(message), std::move(bytes), closes};
    const auto finish = [](GObject* stream, GAsyncResult* result, gpointer data) {
        auto* written = static_cast<VerbatimWrite*>(data);
        g_output_stream_write_all_finish(G_OUTPUT_STREAM(stream), result, nullptr, nullptr);
        if (written->closes)
            delete written;
        else
            stayOpen(written);
    };
    g_output_stream_write_all_async(g_io_stream_get_output_stream(write->connection),
        write->bytes.data(), write->bytes.size(), G_PRIORITY_DEFAULT, nullptr, finish, write);
}

} // namespace

/// A request between its arrival and its answer.
struct DemoServer::Pending {
    DemoServer* server;
    SoupServerMessage* message; ///< The library's; gone once the request has finished.
    Answer answer;
    std::size_t number;
    bool isFinished = false; ///< The answer is out, or the client gave up.
};

DemoServer::DemoServer(RequestLog& log, Handler handler)
    : log_(log)
    , handler_(std::move(handler))
    , server_(soup_server_new("server-header", "velmaro-demo-service", nullptr))
{
    const auto receive = [](SoupServer*, SoupServerMessage* message, const char* path, GHashTable*,
                             gpointer self) {
        static_cast<DemoServer*>(self)->receive(message, path);
    };
    soup_server_add_handler(server_, nullptr, receive, this, nullptr);
}

DemoServer::~DemoServer()
{
    soup_server_disconnect(server_);
    g_object_unref(server_);
}

void DemoServer::listen(const Certificate& files, int port)
{
    GError* error = nullptr;
    GTlsCertificate* certificate = g_tls_certificate_new_from_files(
        files.certificateFile.c_str(), files.keyFile.c_str(), &error);
    if (!certificate)
        throw runtimeError(error);
    soup_server_set_tls_certificate(server_, certificate);
    g_object_unref(certificate);

    if (!soup_server_listen_local(
            server_, static_cast<guint>(port), SOUP_SERVER_LISTEN_HTTPS, &error))
        throw runtimeError(error);

    GSList* addresses = soup_server_get_uris(server_);
    port_ = g_uri_get_port(static_cast<GUri*>(addresses->data));
    g_slist_free_full(
        addresses, [](gpointer address) { g_uri_unref(static_cast<GUri*>(address)); });
}

void DemoServer::receive(SoupServerMessage* message, const char* path)
{
    connections_.watch(soup_server_message_get_socket(message));
    const Request request = requestOf(message, path, port_);
    const std::size_t number = log_.add(request);
    auto pending = std::make_shared<Pending>(Pending{
        .server = this,
        .message = message,
        .answer = handler_(request),
        .number = number,
    });

    g_signal_connect_data(
        message, "finished", GCallback(+[](SoupServerMessage*, gpointer data) {
            (*static_cast<std::shared_ptr<Pending>*>(data))->isFinished = true;
        }),
        new std::shared_ptr<Pending>(pending),
        [](gpointer data, GClosure*) { delete static_cast<std::shared_ptr<Pending>*>(data); },
        GConnectFlags(0));

    if (pending->answer.delivery == Delivery::whole && pending->answer.delay.count() == 0) {
        send(pending);
        return;
    }
    soup_server_message_pause(message);
    if (pending->answer.delivery == Delivery::silence)
        return;
    g_timeout_add_full(
        G_PRIORITY_DEFAULT, static_cast<guint>(pending->answer.delay.count()),
        [](gpointer data) -> gboolean {
            const auto& late = *static_cast<std::shared_ptr<Pending>*>(data);
            if (!late->isFinished)
                late->server->send(late);
            return G_SOURCE_REMOVE;
        },
        new std::shared_ptr<Pending>(pending),
        [](gpointer data) { delete static_cast<std::shared_ptr<Pending>*>(data); });
}

void DemoServer::send(const std::shared_ptr<Pending>& pending)
{
    auto* message = pending->message;
    const Answer& answer = pending->answer;
    log_.setStatus(pending->number, answer.status);

    if (answer.delivery != Delivery::whole) {
        pending->isFinished = true; // The library sends nothing more, and says nothing more.
        sendVerbatim(message, answer.body, answer.delivery == Delivery::verbatim);
        return;
    }

    soup_server_message_set_status(message, answer.status, nullptr);
    auto* headers = soup_server_message_get_response_headers(message);
    for (const auto& [name, value] : answer.headers)
        soup_message_headers_append(headers, name.c_str(), value.c_str());
    if (!answer.body.empty()) {
        soup_message_body_append(soup_server_message_get_response_body(message), SOUP_MEMORY_COPY,
            answer.body.data(), answer.body.size());
    }
    if (answer.delay.count() > 0)
        soup_server_message_unpause(message);
}

} // namespace demo
