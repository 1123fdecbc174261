#pragma once

#include "platform/gtk/network/GtkURLCache.h"
#include "platform/gtk/network/HostTrust.h"
#include "platform/gtk/network/HttpExchange.h"

#include <functional>
#include <memory>
#include <string>

namespace gtk {

// A Photon service on the network: it finds places by what they are called. The connection is made
// at the first question.
class GeocodingService {
public:
    struct Options {
        std::string address; // such as "https://photon.example"; "/api" follows
        std::string userAgent; // who asks
        std::shared_ptr<const HostTrust> trust = std::make_shared<HostTrust>();
        unsigned secondsToWait = 10; // while nothing at all comes from the service
    };

    using Answer = HttpExchange::Answer;
    using Handler = std::function<void(const Answer&)>;

    // A question that waits for its answer. Dropping it takes the question back.
    using Question = std::shared_ptr<void>;

    // `cache` must outlive this.
    GeocodingService(Options options, GtkURLCache& cache);
    ~GeocodingService();

    // Asks for at most `limit` places, best first. `handler` is called once, later; not when the
    // question was taken back.
    [[nodiscard]] Question search(const std::string& text, int limit, Handler handler);

private:
    SoupSession* session();

    const Options options_;
    GtkURLCache& cache_;
    ObjectPointer<SoupSession> session_; // null until the first question
};

} // namespace gtk
