#include "FakeGeocoder.h"

#include <stdexcept>

namespace desktop {

namespace {

std::string item(GHashTable* query, const char* name)
{
    const auto* value = query ? g_hash_table_lookup(query, name) : nullptr;
    return value ? static_cast<const char*>(value) : "";
}

} // namespace

FakeGeocoder::FakeGeocoder()
{
    listen();
}

FakeGeocoder::~FakeGeocoder()
{
    stop();
}

std::string FakeGeocoder::address() const
{
    return "http://127.0.0.1:" + std::to_string(port_);
}

void FakeGeocoder::answer(std::string body, unsigned status, std::string cacheControl)
{
    body_ = std::move(body);
    status_ = status;
    cacheControl_ = std::move(cacheControl);
    isHolding_ = false;
    if (!server_)
        listen();
}

void FakeGeocoder::answerHeld(std::size_t index, const std::string& body)
{
    send(held_.at(index), body, 200);
    soup_server_message_unpause(held_.at(index));
}

void FakeGeocoder::stop()
{
    for (auto* message : held_)
        g_object_unref(message);
    held_.clear();
    if (!server_)
        return;
    soup_server_disconnect(server_);
    g_clear_object(&server_);
}

void FakeGeocoder::listen()
{
    server_ = soup_server_new(nullptr, nullptr);
    soup_server_add_handler(
        server_, "/api",
        [](SoupServer*, SoupServerMessage* message, const char*, GHashTable* query, gpointer self) {
            static_cast<FakeGeocoder*>(self)->receive(message, query);
        },
        this, nullptr);
    GError* error = nullptr;
    if (!soup_server_listen_local(server_, port_, SOUP_SERVER_LISTEN_IPV4_ONLY, &error)) {
        const std::runtime_error failure(error->message);
        g_error_free(error);
        throw failure;
    }
    GSList* addresses = soup_server_get_uris(server_);
    port_ = static_cast<unsigned>(g_uri_get_port(static_cast<GUri*>(addresses->data)));
    g_slist_free_full(addresses, reinterpret_cast<GDestroyNotify>(g_uri_unref));
}

void FakeGeocoder::receive(SoupServerMessage* message, GHashTable* query)
{
    questions_.push_back(item(query, "q"));
    limits_.push_back(item(query, "limit"));
    if (!isHolding_)
        return send(message, body_, status_);
    held_.push_back(static_cast<SoupServerMessage*>(g_object_ref(message)));
    soup_server_message_pause(message);
}

void FakeGeocoder::send(SoupServerMessage* message, const std::string& body, unsigned status) const
{
    soup_server_message_set_status(message, status, nullptr);
    soup_message_headers_append(
        soup_server_message_get_response_headers(message), "Cache-Control", cacheControl_.c_str());
    soup_server_message_set_response(
        message, "application/json", SOUP_MEMORY_COPY, body.data(), body.size());
}

} // namespace desktop
