#pragma once

#include "http/Request.h"

#include <chrono>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace demo {

/// How an answer goes over the wire.
enum class Delivery {
    whole, ///< Headers and body, as HTTP wants them.
    verbatim, ///< The body is every byte that is sent, status line included; then the connection
              ///< ends.
    verbatimThenSilence, ///< The same, but the connection stays open and nothing more comes.
    silence, ///< Nothing is sent until the client gives up.
};

/// What the service answers to a request.
struct Answer {
    unsigned status = 200;
    std::vector<std::pair<std::string, std::string>> headers = {};
    std::string body = {};
    Delivery delivery = Delivery::whole;
    std::chrono::milliseconds delay{}; ///< Waited before the first byte.

    Answer&& with(std::string name, std::string value) &&;
};

Answer typedAnswer(std::string_view contentType, std::string body, unsigned status = 200);
Answer htmlAnswer(std::string body, unsigned status = 200);
Answer jsonAnswer(const nlohmann::json&, unsigned status = 200);

/// {"message": …} with a status of 400 or above.
Answer errorAnswer(unsigned status, std::string_view message);

Answer redirectAnswer(std::string address, unsigned status = 302);

/// An attachment, to be saved under the name. The name must need no quoting.
Answer attachmentAnswer(std::string_view contentType, std::string_view fileName, std::string body);

/// The body with a strong tag made from its bytes and ten minutes of private caching,
/// or 304 without a body when the client already holds these bytes. Compressed when the client
/// knows gzip.
Answer cachedAnswer(const Request&, std::string_view contentType, std::string body);

} // namespace demo
