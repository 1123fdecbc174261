#include "platform/Platform.h"

#include <cassert>

namespace platform {

namespace {
Platform* currentPlatform = nullptr;
}

Platform& Platform::current()
{
    assert(currentPlatform);
    return *currentPlatform;
}

Platform::Platform()
    : previous_(currentPlatform)
{
    currentPlatform = this;
}

Platform::~Platform()
{
    currentPlatform = previous_;
}

void NSLog(const std::string& line)
{
    Platform::current().log(line);
}

} // namespace platform
