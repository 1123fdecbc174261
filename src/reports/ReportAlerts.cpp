#include "reports/ReportAlerts.h"

#include "platform/appkit/NSAlert.h"
#include "platform/appkit/NSApplication.h"
#include "platform/appkit/NSSharingServicePicker.h"
#include "platform/appkit/NSView.h"
#include "platform/appkit/NSWorkspace.h"
#include "platform/Platform.h"

namespace velmaro {

using platform::NSAlert;
using platform::NSApplication;
using platform::NSRect;
using platform::NSRectEdge;
using platform::URL;

namespace {

// The list hangs from a point in the middle of the window, a little below its upper edge.
NSRect anchor(const NSRect& bounds)
{
    const auto& [origin, size] = bounds;
    return {{origin.x + size.width / 2 - 1, origin.y + size.height - 20}, {2, 2}};
}

void share(const URL& file)
{
    const platform::NSSharingServicePicker picker{.items = {file}};
    const auto window = NSApplication::shared().keyWindow();
    if (auto* view = window ? window->contentView() : nullptr)
        return picker.show(anchor(view->bounds()), *view, NSRectEdge::minY);
    const auto view = platform::Platform::current().makeView();
    picker.show({{0, 0}, {1, 1}}, *view, NSRectEdge::minY);
}

} // namespace

void showReportSavedAlert(const URL& file)
{
    const NSAlert alert{
        .messageText = "Report saved",
        .informativeText = "Saved " + file.lastPathComponent() + " to your Downloads folder.",
        .alertStyle = NSAlert::Style::informational,
        .buttons = {"Share…", "Reveal in Finder", "Done"},
    };
    alert.runModal([file](int button) {
        if (button == NSAlert::firstButton)
            share(file);
        else if (button == NSAlert::secondButton)
            platform::NSWorkspace::shared().activateFileViewerSelecting({file});
    });
}

void showReportErrorAlert(const std::string& text)
{
    const NSAlert alert{
        .messageText = "Velmaro Online",
        .informativeText = text,
        .alertStyle = NSAlert::Style::warning,
        .buttons = {},
    };
    alert.runModal({});
}

} // namespace velmaro
