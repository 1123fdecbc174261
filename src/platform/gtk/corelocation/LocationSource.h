#pragma once

#include "platform/corelocation/CLLocation.h"

#include <functional>
#include <string>

namespace gtk {

// Somebody who can tell where the computer is, for one request. Dropping it ends the request, also
// from inside a handler.
class LocationSource {
public:
    struct Handlers {
        std::function<void()> onStarted; // the desktop has agreed, and is looking
        std::function<void(const platform::CLLocation&)>
            onLocation; // valid; better ones may follow
        std::function<void(const std::string& reason)> onFailure; // a sentence; nothing follows
    };

    virtual ~LocationSource() = default;

    // `accuracy` in metres. To be called once; the handlers are called later.
    virtual void start(double accuracy, Handlers handlers) = 0;
};

} // namespace gtk
