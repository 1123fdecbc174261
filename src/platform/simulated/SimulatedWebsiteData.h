#pragma once

#include "platform/webkit/WKWebsiteDataStore.h"

#include <deque>
#include <functional>
#include <vector>

namespace simulated {

// What pages have stored, of which nothing is left as soon as the test says so.
class SimulatedWebsiteData {
public:
    void remove(platform::WKWebsiteDataStore store, std::function<void()> completion);

    // The oldest removal that is under way comes to its end; fails the test when there is no
    // removal under way.
    void simulateRemoved();
    bool isWaiting() const { return !waiting_.empty(); }

    // All removals that were ever asked for, in order.
    std::vector<platform::WKWebsiteDataStore> removals;

private:
    std::deque<std::function<void()>> waiting_;
};

} // namespace simulated
