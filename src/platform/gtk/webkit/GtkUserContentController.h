#pragma once

#include "platform/gtk/foundation/SignalHandlers.h"
#include "platform/webkit/WKUserContentController.h"

#include <functional>
#include <webkit/webkit.h>

namespace gtk {

// The scripts of one web view, and the names under which its pages post messages.
class GtkUserContentController {
public:
    // Messages that come while `acceptsMessages` is false are dropped.
    GtkUserContentController(
        const platform::WKUserContentController& controller, std::function<bool()> acceptsMessages);

    WebKitUserContentManager* manager() const { return manager_.get(); }

private:
    struct Bridge {
        const GtkUserContentController& owner;
        platform::WKUserContentController::MessageHandler receiver;
    };

    void addStyle(const char* source);
    void addScript(const platform::WKUserScript& script);
    void addBridge(const platform::WKUserContentController::MessageHandler& receiver);
    static void receive(WebKitUserContentManager*, JSCValue* body, Bridge* bridge);

    ObjectPointer<WebKitUserContentManager> manager_;
    std::function<bool()> acceptsMessages_;
    std::vector<std::unique_ptr<Bridge>> bridges_;
    SignalHandlers signals_;
};

} // namespace gtk
