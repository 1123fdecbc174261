#pragma once

#include "platform/sparkle/SPUStandardUpdaterController.h"
#include "platform/sparkle/SPUUpdater.h"

namespace simulated {

// An updater that counts what it is asked for.
class SimulatedUpdaterController final : public platform::SPUStandardUpdaterController,
                                         public platform::SPUUpdater {
public:
    explicit SimulatedUpdaterController(bool isStarted)
        : isStarted(isStarted)
    {
    }

    platform::SPUUpdater& updater() override { return *this; }
    bool canCheckForUpdates() const override { return canCheck; }
    void checkForUpdates() override { ++checks; }

    const bool isStarted;
    bool canCheck = true;
    int checks = 0;
};

} // namespace simulated
