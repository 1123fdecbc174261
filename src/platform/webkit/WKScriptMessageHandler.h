#pragma once

#include "platform/foundation/Value.h"

#include <string>

namespace platform {

// What a page posted to one of the registered names. What a script value cannot be turned into
// (undefined, a function) is null.
struct WKScriptMessage {
    std::string name;
    Value body;
};

// Receives what pages post. The web view holds it weakly and calls it on the main thread, in the
// order of posting.
class WKScriptMessageHandler {
public:
    virtual ~WKScriptMessageHandler() = default;

    virtual void userContentControllerDidReceiveScriptMessage(const WKScriptMessage& message) = 0;
};

} // namespace platform
