#include "platform/gtk/mapkit/GeocodingService.h"

namespace gtk {

namespace {

constexpr std::uint64_t largestAnswer = 1'000'000; // bytes

std::string escaped(const std::string& text)
{
    g_autofree char* result =
        g_uri_escape_bytes(reinterpret_cast<const guint8*>(text.data()), text.size(), nullptr);
    return result;
}

std::string withoutSlashAtTheEnd(std::string address)
{
    while (address.ends_with('/'))
        address.pop_back();
    return address;
}

platform::NSError explanation(const HttpRequest::Failure& failure)
{
    using enum HttpRequest::Failure::Reason;
    switch (failure.reason) {
    case badAddress:
        return {"The address search is set up with an invalid address."};
    case badStatus:
        return {"The address search failed (" + failure.detail + ")."};
    case tooLong:
        return {"The address search answered too much."};
    case noAnswer:
    case brokenOff:
    case refused:
        break;
    }
    return {failure.detail};
}

} // namespace

GeocodingService::GeocodingService(Options options, GtkURLCache& cache)
    : options_(std::move(options))
    , cache_(cache)
{
}

GeocodingService::Question GeocodingService::search(
    const std::string& text, int limit, Handler handler)
{
    const auto body = std::make_shared<std::string>();
    return std::make_unique<HttpRequest>(session(),
        HttpRequest::Options{
            .address = withoutSlashAtTheEnd(options_.address) + "/api?q=" + escaped(text)
                + "&limit=" + std::to_string(limit),
            .mostBytes = largestAnswer,
            .trust = options_.trust,
        },
        HttpRequest::Handlers{
            .receive =
                [body](std::string_view bytes) {
                    body->append(bytes);
                    return true;
                },
            .finish =
                [body, handler = std::move(handler)](const auto& failure) {
                    handler(failure ? Answer(explanation(*failure)) : Answer(*body));
                },
        });
}

SoupSession* GeocodingService::session()
{
    if (!session_) {
        session_ = HttpRequest::makeSession(options_.secondsToWait);
        g_object_set(session_.get(), "accept-language-auto", TRUE, nullptr);
        cache_.attach(session_.get());
    }
    return session_.get();
}

} // namespace gtk
