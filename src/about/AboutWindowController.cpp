#include "about/AboutWindowController.h"

#include "about/AboutView.h"
#include "platform/appkit/NSApplication.h"
#include "platform/appkit/NSWindowDescription.h"
#include "platform/Platform.h"
#include "platform/ui/Views.h"

namespace velmaro {

using platform::NSApplication;
using platform::NSWindow;
using platform::NSWindowDescription;

AboutWindowController& AboutWindowController::shared()
{
    return platform::Platform::current().shared<AboutWindowController>();
}

void AboutWindowController::show()
{
    auto window = window_.lock();
    if (!window) {
        window = NSWindow::make({
            .styleMask = NSWindowDescription::titled | NSWindowDescription::closable
                | NSWindowDescription::fullSizeContentView,
            .contentSize = {AboutView::width, AboutView::height},
            .title = "About Velmaro Online",
            .isTitleHidden = true,
            .isTitlebarTransparent = true,
            .isMovableByWindowBackground = true,
            .content = AboutView{},
        });
        window->setDelegate(this);
        window->center();
        window_ = window;
    }
    window->makeKeyAndOrderFront();
    NSApplication::shared().activateIgnoringOtherApps(true);
}

} // namespace velmaro
