#include "platform/sparkle/SPUStandardUpdaterController.h"

#include "platform/Platform.h"

namespace platform {

std::shared_ptr<SPUStandardUpdaterController> SPUStandardUpdaterController::make(
    bool startingUpdater)
{
    return Platform::current().makeUpdaterController(startingUpdater);
}

} // namespace platform
