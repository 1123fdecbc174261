#pragma once

#include "platform/webkit/WKScriptMessageHandler.h"
#include "platform/webkit/WKUserScript.h"

#include <memory>
#include <string>
#include <vector>

namespace platform {

// What the program puts into the pages of a web view: scripts, and names that pages may post
// messages to. It is a plain value, which the web view copies.
struct WKUserContentController {
    struct MessageHandler {
        std::string name;
        std::weak_ptr<WKScriptMessageHandler> handler; // a message for one that has gone is dropped
    };

    std::vector<WKUserScript> userScripts;
    std::vector<MessageHandler> scriptMessageHandlers;
};

} // namespace platform
