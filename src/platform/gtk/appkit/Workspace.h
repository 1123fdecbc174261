#pragma once

#include "platform/appkit/NSWorkspace.h"

namespace gtk {

// The desktop's other programs: addresses go to their default handlers, files to whatever answers
// as the file manager on the session bus.
class Workspace final : public platform::NSWorkspace {
public:
    void open(const platform::URL& url) override;
    void activateFileViewerSelecting(const std::vector<platform::URL>& files) override;
};

} // namespace gtk
