#include "platform/simulated/SimulatedWebsiteData.h"

#include "platform/simulated/Failure.h"

#include <utility>

namespace simulated {

void SimulatedWebsiteData::remove(
    platform::WKWebsiteDataStore store, std::function<void()> completion)
{
    removals.push_back(store);
    waiting_.push_back(std::move(completion));
}

void SimulatedWebsiteData::simulateRemoved()
{
    if (waiting_.empty())
        return fail("nobody waits for the end of a removal");
    const auto completion = std::move(waiting_.front());
    waiting_.pop_front();
    completion();
}

} // namespace simulated
