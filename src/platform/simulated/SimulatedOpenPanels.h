#pragma once

#include "platform/appkit/NSOpenPanel.h"

#include <deque>
#include <vector>

namespace simulated {

// The open panels of a program whose user is the test: each waits until the test answers it.
class SimulatedOpenPanels {
public:
    void begin(const platform::NSOpenPanel& panel, platform::NSOpenPanel::Completion completion);

    // The user chooses these files in the oldest panel, or closes it; fails the test when no panel
    // is open.
    void simulateChoice(const std::vector<platform::URL>& files) { answer(files); }
    void simulateCancel() { answer(std::nullopt); }

    // All panels that were ever asked for, in order.
    std::vector<platform::NSOpenPanel> shown;

private:
    void answer(const std::optional<std::vector<platform::URL>>& files);

    std::deque<platform::NSOpenPanel::Completion> waiting_;
};

} // namespace simulated
