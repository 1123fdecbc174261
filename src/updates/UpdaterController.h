#pragma once

#include "platform/sparkle/SPUStandardUpdaterController.h"

#include <memory>

namespace velmaro {

// Keeps the application up to date for as long as it lives. Looking for versions, and all that the
// user sees of it, is the framework's.
class UpdaterController {
public:
    const std::shared_ptr<platform::SPUStandardUpdaterController> controller =
        platform::SPUStandardUpdaterController::make(true);
};

} // namespace velmaro
