#include "platform/simulated/SimulatedOpenPanels.h"

#include "platform/simulated/Failure.h"

namespace simulated {

void SimulatedOpenPanels::begin(
    const platform::NSOpenPanel& panel, platform::NSOpenPanel::Completion completion)
{
    shown.push_back(panel);
    waiting_.push_back(std::move(completion));
}

void SimulatedOpenPanels::answer(const std::optional<std::vector<platform::URL>>& files)
{
    if (waiting_.empty())
        return fail("no open panel waits for an answer");
    const auto completion = std::move(waiting_.front());
    waiting_.pop_front();
    completion(files);
}

} // namespace simulated
