// The services that the current platform keeps one of, under the names they are called by.

#include "platform/foundation/Bundle.h"
#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/FileManager.h"
#include "platform/foundation/ProcessInfo.h"
#include "platform/foundation/URLCache.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/Platform.h"

namespace platform {

Bundle& Bundle::main()
{
    return Platform::current().mainBundle();
}

DispatchQueue& DispatchQueue::main()
{
    return Platform::current().mainQueue();
}

FileManager& FileManager::defaultManager()
{
    return Platform::current().fileManager();
}

ProcessInfo& ProcessInfo::processInfo()
{
    return Platform::current().processInfo();
}

URLCache& URLCache::shared()
{
    return Platform::current().urlCache();
}

UserDefaults& UserDefaults::standard()
{
    return Platform::current().userDefaults();
}

} // namespace platform
