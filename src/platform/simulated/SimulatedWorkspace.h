#pragma once

#include "platform/appkit/NSWorkspace.h"

namespace simulated {

// A desktop without other programs: it records what they would have been handed.
class SimulatedWorkspace final : public platform::NSWorkspace {
public:
    void open(const platform::URL& url) override { opened.push_back(url); }
    void activateFileViewerSelecting(const std::vector<platform::URL>& files) override
    {
        revealed.push_back(files);
    }

    std::vector<platform::URL> opened;
    std::vector<std::vector<platform::URL>> revealed; // one entry a request
};

} // namespace simulated
