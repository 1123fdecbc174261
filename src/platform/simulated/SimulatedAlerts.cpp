#include "platform/simulated/SimulatedAlerts.h"

#include "platform/simulated/Failure.h"

#include <algorithm>

namespace simulated {

void SimulatedAlerts::run(
    const platform::NSAlert& alert, std::function<void(int button)> completion)
{
    shown.push_back(alert);
    waiting_.push_back({alert, std::move(completion)});
    if (waiting_.back().alert.buttons.empty())
        waiting_.back().alert.buttons.emplace_back("OK");
}

void SimulatedAlerts::simulateAnswer(const std::string& button)
{
    if (waiting_.empty())
        return fail("no alert waits for the answer " + button);
    const auto& buttons = waiting_.front().alert.buttons;
    const auto found = std::ranges::find(buttons, button);
    if (found == buttons.end())
        return fail("the alert has no button " + button);

    const int number = static_cast<int>(found - buttons.begin());
    const auto completion = std::move(waiting_.front().completion);
    waiting_.pop_front();
    if (completion)
        completion(number);
}

const platform::NSAlert& SimulatedAlerts::front() const
{
    static const platform::NSAlert none;
    if (waiting_.empty())
        fail("no alert is shown");
    return waiting_.empty() ? none : waiting_.front().alert;
}

} // namespace simulated
