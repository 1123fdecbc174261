// The services that the current platform keeps one of, under the names they are called by.

#include "platform/appkit/NSAlert.h"
#include "platform/appkit/NSApplication.h"
#include "platform/appkit/NSOpenPanel.h"
#include "platform/appkit/NSPrintInfo.h"
#include "platform/appkit/NSSharingServicePicker.h"
#include "platform/appkit/NSWorkspace.h"
#include "platform/Platform.h"

namespace platform {

namespace {

struct WindowTabbing {
    bool isAutomatic = true;
};

} // namespace

void NSAlert::runModal(std::function<void(int button)> completion) const
{
    Platform::current().runModal(*this, std::move(completion));
}

NSApplication& NSApplication::shared()
{
    return Platform::current().application();
}

NSPrintInfo& NSPrintInfo::shared()
{
    return Platform::current().shared<NSPrintInfo>();
}

void NSOpenPanel::begin(Completion completion) const
{
    Platform::current().showOpenPanel(*this, std::move(completion));
}

NSScreen* NSScreen::main()
{
    return Platform::current().mainScreen();
}

void NSSharingServicePicker::show(
    const NSRect& rectangle, NSView& view, NSRectEdge preferredEdge) const
{
    Platform::current().showSharingServices(*this, rectangle, view, preferredEdge);
}

NSWorkspace& NSWorkspace::shared()
{
    return Platform::current().workspace();
}

std::shared_ptr<NSWindow> NSWindow::make(const NSWindowDescription& description)
{
    return NSApplication::shared().makeWindow(description);
}

void NSWindow::center()
{
    auto* ownScreen = screen();
    const auto* screen = ownScreen ? ownScreen : NSScreen::main();
    if (!screen)
        return;
    const auto area = screen->visibleFrame();
    auto centred = frame();
    centred.origin.x = area.origin.x + (area.size.width - centred.size.width) / 2;
    centred.origin.y = area.origin.y + (area.size.height - centred.size.height) / 2;
    setFrame(centred, true);
}

bool NSWindow::allowsAutomaticWindowTabbing()
{
    return Platform::current().shared<WindowTabbing>().isAutomatic;
}

void NSWindow::setAllowsAutomaticWindowTabbing(bool isAllowed)
{
    Platform::current().shared<WindowTabbing>().isAutomatic = isAllowed;
}

} // namespace platform
