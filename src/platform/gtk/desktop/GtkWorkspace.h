#pragma once

#include "platform/appkit/NSWorkspace.h"
#include "platform/gtk/desktop/AddressLauncher.h"
#include "platform/gtk/foundation/BusConversation.h"

namespace gtk {

// The desktop's other programs: addresses go to their default handlers, files to the program that
// answers as the file manager on the session bus.
class GtkWorkspace final : public platform::NSWorkspace {
public:
    GtkWorkspace();

    void open(const platform::URL& url) override;
    void activateFileViewerSelecting(const std::vector<platform::URL>& files) override;

private:
    AddressLauncher launcher_;
    BusConversation fileManager_;
};

} // namespace gtk
