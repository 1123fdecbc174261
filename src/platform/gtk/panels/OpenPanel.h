#pragma once

#include "platform/appkit/NSOpenPanel.h"

namespace gtk {

// Shows the desktop's file chooser; inside a sandbox that is the portal's, which lets this program
// see what is chosen and nothing else.
void showOpenPanel(
    const platform::NSOpenPanel& panel, platform::NSOpenPanel::Completion completion);

} // namespace gtk
