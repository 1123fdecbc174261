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

    // Brings the window to the front, with a new one when there is none.
    void show();

    void windowWillClose(platform::NSWindow&) override { window_.reset(); }

private:
    std::weak_ptr<platform::NSWindow> window_; // none before the first `show` and after its closing
};

} // namespace velmaro
