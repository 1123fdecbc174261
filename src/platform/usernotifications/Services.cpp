#include "platform/Platform.h"
#include "platform/usernotifications/UNUserNotificationCenter.h"

namespace platform {

UNUserNotificationCenter& UNUserNotificationCenter::currentNotificationCenter()
{
    return Platform::current().userNotificationCenter();
}

} // namespace platform
