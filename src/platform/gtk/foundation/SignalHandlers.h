#pragma once

#include "platform/gtk/foundation/ObjectPointer.h"

#include <vector>

namespace gtk {

// Handlers of signals of the C interfaces. All of them end with this.
class SignalHandlers {
public:
    SignalHandlers() = default;
    ~SignalHandlers();

    SignalHandlers(const SignalHandlers&) = delete;
    SignalHandlers& operator=(const SignalHandlers&) = delete;

    // `handler` gets what the signal carries, and `data` after that.
    void connect(gpointer object, const char* signal, GCallback handler, gpointer data);

private:
    struct Handler {
        ObjectPointer<GObject> object;
        gulong id;
    };

    std::vector<Handler> handlers_;
};

} // namespace gtk
