#pragma once

#include "platform/appkit/NSWindow.h"
#include "platform/appkit/NSWindowDelegate.h"

#include <memory>

namespace velmaro {

// Shows the About window, of which there is at most one.
class AboutWindowController final : public platform::NSWindowDelegate {
public:
    // The one of this run.
    static AboutWindowController& shared();

    // Brings the window to the front, and makes a new one when there is no window.
    void show();

    void windowWillClose(platform::NSWindow&) override { window_.reset(); }

private:
    std::weak_ptr<platform::NSWindow> window_; // expired while no window is open
};

} // namespace velmaro
