#pragma once

#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/Lifetime.h"

#include <deque>
#include <functional>

namespace gtk {

// What the program was asked to do from outside and cannot do yet: at a cold start there is no page
// to show an address. Requests wait, in order and without limit of time, until there is one.
class RequestQueue {
public:
    // `isReady` is asked before each request.
    RequestQueue(platform::DispatchQueue& queue, std::function<bool()> isReady);

    // `request` is called from a task of the queue of its own.
    void enqueue(std::function<void()> request);

    // To be called whenever `isReady` may have become true.
    void update();

private:
    void performNext();

    platform::DispatchQueue& queue_;
    std::function<bool()> isReady_;
    std::deque<std::function<void()>> waiting_;
    bool isNextQueued_ = false;
    platform::Lifetime lifetime_;
};

} // namespace gtk
