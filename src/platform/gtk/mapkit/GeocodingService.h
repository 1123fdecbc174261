#pragma once

#include "platform/foundation/NSError.h"
#include "platform/gtk/network/GtkURLCache.h"
#include "platform/gtk/network/HttpRequest.h"

#include <functional>
#include <memory>
#include <string>
#include <variant>

namespace gtk {

// A Photon service on the network: it finds places by what they are called. The connection is made
// at the first question.
class GeocodingService {
public:
    struct Options {
        std::string address; // such as "https://photon.example"; "/api" follows
        std::shared_ptr<const HostTrust> trust = std::make_shared<HostTrust>(); // never null
        unsigned secondsToWait = 10; // while nothing at all comes from the service
    };

    // The text of an answer, or why it did not come.
    using Answer = std::variant<std::string, platform::NSError>;
    using Handler = std::function<void(const Answer&)>;

    // A question that waits for its answer. Dropping it takes the question back.
    using Question = std::unique_ptr<HttpRequest>;

    // `cache` must outlive this.
    GeocodingService(Options options, GtkURLCache& cache);

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
