#include "platform/gtk/mapkit/GeocodingService.h"

namespace gtk {

namespace {

std::string escaped(const std::string& text)
{
    const std::unique_ptr<char, decltype(&g_free)> result(
        g_uri_escape_bytes(reinterpret_cast<const guint8*>(text.data()), text.size(), nullptr),
        g_free);
    return result.get();
}

std::string withoutSlashAtTheEnd(std::string address)
{
    while (address.ends_with('/'))
        address.pop_back();
    return address;
}

gboolean acceptCertificate(
    SoupMessage* message, GTlsCertificate* refused, GTlsCertificateFlags, gpointer trust)
{
    const char* host = g_uri_get_host(soup_message_get_uri(message));
    return static_cast<const HostTrust*>(trust)->vouchesFor(refused, host);
}

} // namespace

GeocodingService::GeocodingService(Options options, GtkURLCache& cache)
    : options_(std::move(options))
    , cache_(cache)
{
}

GeocodingService::~GeocodingService()
{
    if (session_)
        soup_session_abort(session_.get());
}

GeocodingService::Question GeocodingService::search(
    const std::string& text, int limit, Handler handler)
{
    const auto address = withoutSlashAtTheEnd(options_.address) + "/api?q=" + escaped(text)
        + "&limit=" + std::to_string(limit);
    // Null when the address is none.
    ObjectPointer<SoupMessage> message(soup_message_new(SOUP_METHOD_GET, address.c_str()));
    if (message) {
        g_signal_connect(message.get(), "accept-certificate", G_CALLBACK(acceptCertificate),
            const_cast<HostTrust*>(options_.trust.get()));
    }
    return HttpExchange::start(session(), std::move(message), std::move(handler));
}

SoupSession* GeocodingService::session()
{
    if (!session_) {
        session_.reset(soup_session_new_with_options("timeout", options_.secondsToWait,
            "user-agent", options_.userAgent.c_str(), "accept-language-auto", TRUE, nullptr));
        cache_.attach(session_.get());
    }
    return session_.get();
}

} // namespace gtk
