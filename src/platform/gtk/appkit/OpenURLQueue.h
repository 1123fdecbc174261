#pragma once

#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/URL.h"

#include <deque>
#include <functional>
#include <memory>
#include <string>

namespace gtk {

// Addresses that the program was asked to open and cannot hand over yet: at a cold start there is
// no page to show them. They wait, in order and without limit of time, until somebody can take
// them.
class OpenURLQueue {
public:
    // `isReady` is asked before each delivery. `deliver` is called from tasks of `queue`, one for
    // each address.
    OpenURLQueue(platform::DispatchQueue& queue, std::function<bool()> isReady,
        std::function<void(const platform::URL&)> deliver);

    // Takes an address as its sender wrote it; one that is no valid address is dropped.
    void enqueue(const std::string& address);

    // To be called whenever `isReady` may have become true.
    void update();

private:
    void deliverNext();

    platform::DispatchQueue& queue_;
    std::function<bool()> isReady_;
    std::function<void(const platform::URL&)> deliver_;
    std::deque<platform::URL> waiting_;
    bool isDeliveryQueued_ = false;
    std::shared_ptr<void> life_ = std::make_shared<char>();
};

} // namespace gtk
