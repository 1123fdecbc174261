#include "platform/gtk/network/HttpExchange.h"

#include <glibmm/main.h>

namespace gtk::HttpExchange {

namespace {

constexpr gsize mostBytes = 1'000'000;

// Lives until the engine has called back for the last time.
struct Exchange {
    ObjectPointer<SoupMessage> message;
    ObjectPointer<GCancellable> cancellable;
    std::function<void(const Answer&)> handler;
    std::string body;
};

void finish(std::unique_ptr<Exchange> exchange, const Answer& answer)
{
    if (!g_cancellable_is_cancelled(exchange->cancellable.get()))
        exchange->handler(answer);
}

platform::NSError failure(const GError* error)
{
    return {error ? error->message : "The address search is set up with an address that is none."};
}

// The body with one byte more than is taken from anybody, or all of it.
void bodyRead(GObject* stream, GAsyncResult* result, gpointer data)
{
    std::unique_ptr<Exchange> exchange(static_cast<Exchange*>(data));
    g_autoptr(GError) error = nullptr;
    gsize size = 0;
    if (!g_input_stream_read_all_finish(G_INPUT_STREAM(stream), result, &size, &error))
        return finish(std::move(exchange), failure(error));

    const auto status = soup_message_get_status(exchange->message.get());
    if (!SOUP_STATUS_IS_SUCCESSFUL(status)) {
        return finish(std::move(exchange),
            platform::NSError{"The address search failed (" + std::to_string(status) + ")."});
    }
    if (size > mostBytes) {
        return finish(
            std::move(exchange), platform::NSError{"The address search answered too much."});
    }
    exchange->body.resize(size);
    const Answer answer = std::move(exchange->body);
    finish(std::move(exchange), answer);
}

void answerBegun(GObject* session, GAsyncResult* result, gpointer data)
{
    std::unique_ptr<Exchange> exchange(static_cast<Exchange*>(data));
    g_autoptr(GError) error = nullptr;
    const ObjectPointer<GInputStream> stream(
        soup_session_send_finish(SOUP_SESSION(session), result, &error));
    if (!stream)
        return finish(std::move(exchange), failure(error));

    exchange->body.resize(mostBytes + 1);
    auto& kept = *exchange.release();
    g_input_stream_read_all_async(stream.get(), kept.body.data(), kept.body.size(),
        G_PRIORITY_DEFAULT, kept.cancellable.get(), bodyRead, &kept);
}

} // namespace

std::shared_ptr<void> start(SoupSession* session, ObjectPointer<SoupMessage> message,
    std::function<void(const Answer&)> handler)
{
    auto* cancellable = g_cancellable_new();
    std::shared_ptr<void> question(cancellable, [](gpointer object) {
        g_cancellable_cancel(G_CANCELLABLE(object));
        g_object_unref(object);
    });
    auto& exchange = *new Exchange{std::move(message), retain(cancellable), std::move(handler), {}};
    if (exchange.message) {
        soup_session_send_async(session, exchange.message.get(), G_PRIORITY_DEFAULT, cancellable,
            answerBegun, &exchange);
    } else {
        Glib::signal_idle().connect_once(
            [&exchange] { finish(std::unique_ptr<Exchange>(&exchange), failure(nullptr)); });
    }
    return question;
}

} // namespace gtk::HttpExchange
