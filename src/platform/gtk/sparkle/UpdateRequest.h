#pragma once

#include "platform/foundation/NSError.h"
#include "platform/gtk/network/HttpRequest.h"

namespace gtk {

// Asks the update server for something, over https alone. The bytes are handed on as they were
// sent, since lengths and signatures are those of these bytes.
class UpdateRequest {
public:
    struct Options {
        std::string address;
        std::shared_ptr<const HostTrust> trust; // never null
        std::uint64_t mostBytes;
        std::string tooLong; // what the user is told about an answer of more bytes
    };

    struct Handlers {
        // Keeps the next bytes, and returns whether there was room for them. Must not destroy the
        // request.
        std::function<bool(std::string_view bytes)> receive;

        // Called once, at the end, with the reason if the answer is not complete. May destroy the
        // request.
        std::function<void(std::optional<platform::NSError>)> finish;
    };

    // Begins at once; the handlers are called later, and not after the request has gone.
    UpdateRequest(Options options, Handlers handlers);

private:
    HttpRequest request_;
};

} // namespace gtk
