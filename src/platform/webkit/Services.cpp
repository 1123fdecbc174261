#include "platform/Platform.h"
#include "platform/webkit/WKWebsiteDataStore.h"

namespace platform {

void removeAllData(WKWebsiteDataStore store, std::function<void()> completion)
{
    Platform::current().removeAllData(store, std::move(completion));
}

} // namespace platform
