#pragma once

#include "platform/appkit/NSWorkspace.h"
#include "platform/gtk/desktop/AddressLauncher.h"

namespace gtk {

// The desktop's other programs: addresses go to their default handlers, files to whatever answers
// as the file manager on the session bus.
class GtkWorkspace final : public platform::NSWorkspace {
public:
    void open(const platform::URL& url) override;
    void activateFileViewerSelecting(const std::vector<platform::URL>& files) override;

private:
    const std::shared_ptr<AddressLauncher> launcher_ = std::make_shared<AddressLauncher>();
};

} // namespace gtk
