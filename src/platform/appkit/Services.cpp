// The services that the current platform keeps one of, under the names they are called by.

#include "platform/appkit/NSApplication.h"
#include "platform/Platform.h"

namespace platform {

namespace {

struct WindowTabbing {
    bool isAutomatic = true;
};

} // namespace

NSApplication& NSApplication::shared()
{
    return Platform::current().application();
}

NSScreen* NSScreen::main()
{
    return Platform::current().mainScreen();
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
