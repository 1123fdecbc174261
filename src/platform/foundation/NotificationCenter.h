#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace platform {

// A message that an object sends to all that listen for its name.
struct Notification {
    std::string name;
    const void* sender = nullptr; // identity only; never dereferenced by the centre
};

// Passes notifications from senders to observers in the order of registration. The platform owns
// the default centre, and observers own their registrations. Main thread only; nothing here fails.
class NotificationCenter {
public:
    using Handler = std::function<void(const Notification&)>;

    // A registration; dropping it ends it, also from inside a handler.
    using Observer = std::shared_ptr<void>;

    // The process-wide centre.
    static NotificationCenter& defaultCenter();

    // Calls `handler` for every notification called `name`; from `sender` only, or from any when
    // null.
    [[nodiscard]] Observer addObserver(std::string name, const void* sender, Handler handler);

    // Calls all matching handlers before it returns. Handlers that register while it runs are not
    // called.
    void post(const std::string& name, const void* sender = nullptr);

private:
    struct Registration {
        std::string name;
        const void* sender;
        Handler handler;
    };

    std::vector<std::weak_ptr<Registration>> registrations_;
};

} // namespace platform
